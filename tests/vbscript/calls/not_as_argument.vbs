Sub F(v)
  WScript.Echo v
End Sub
a = 1 : b = 2
F Not a = b '> True
f not a = a '> False
