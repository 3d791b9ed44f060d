as = 4
Sub As2(as) as = as + 1 End Sub
As2 as
WScript.Echo as '> 5
Sub Otra()
  as = 7
  WScript.Echo as '> 7
End Sub
Otra
