Dim i, j, k, total
total = 0
For i = 1 To 300
  For j = 1 To 300
    For k = 1 To 300
      If (i + j + k) Mod 2 = 0 Then total = total + 1
    Next
  Next
Next
WScript.Echo total
