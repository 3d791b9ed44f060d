For i = 1 To 1000
  t = t & "1 + "
Next
WScript.Echo Eval(t & "0") '> 1000
