Sub A
  WScript.Echo "a"
End Sub
Sub B()
  WScript.Echo "b"
End Sub
A '> a
B '> b
A() '> a
