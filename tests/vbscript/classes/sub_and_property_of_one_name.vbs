Class Lista
  Private d(3)
  Sub Assign(i, x)
    d(i) = x
    WScript.Echo "sub", i, x
  End Sub
  Property Let Assign(i, x)
    d(i) = x
    WScript.Echo "let", i, x
  End Property
  Property Set Assign(i, x)
    WScript.Echo "set", i, TypeName(x)
  End Property
  Property Let Otra(x)
    WScript.Echo "let", x
  End Property
  Function Otra(i)
    Otra = d(i)
  End Function
  Sub Dentro
    Assign 2, "a"
    Assign(2) = "b"
    Me.Assign 3, "c"
    Me.Assign(3) = "d"
    Otra = "e"
  End Sub
End Class
Set o = New Lista
o.Assign 1, "v" '> sub 1 v
o.Assign(1) = "w" '> let 1 w
Set o.Assign(1) = o '> set 1 Lista
Call o.Assign(0, "x") '> sub 0 x
o.Otra = 7 '> let 7
WScript.Echo o.Otra(1) '> w
o.Dentro
'> sub 2 a
'> let 2 b
'> sub 3 c
'> let 3 d
'> let e
