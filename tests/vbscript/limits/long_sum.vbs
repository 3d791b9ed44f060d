For i = 1 To 2000
  t = t & "1 + "
Next
WScript.Echo Eval(t & "0") '> 2000
