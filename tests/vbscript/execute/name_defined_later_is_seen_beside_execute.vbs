Sub P
  Execute "Dim a : a = 1"
  ExecuteGlobal "g = 5"
  x = a & g & h
  WScript.Echo x '> 15siete
End Sub
ExecuteGlobal "Function h : h = ""siete"" : End Function"
P
