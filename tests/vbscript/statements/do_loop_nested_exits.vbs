For i = 1 To 3
  j = 0
  Do While True
    j = j + 1
    If j = i Then Exit Do
  Loop
  While True
    s = s & i & j & " "
    Exit For
  Wend
Next
WScript.Echo Trim(s) '> 11
