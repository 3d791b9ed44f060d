Function Lista()
  Lista = Array(5, 6, 7)
End Function
WScript.Echo Lista()(1), UBound(Lista) '> 6 2
