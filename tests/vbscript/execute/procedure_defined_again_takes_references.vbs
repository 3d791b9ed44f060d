' A procedure of the text that ExecuteGlobal defines again may assign what the first one only read.
Sub Show(x)
  WScript.StdOut.Write x & ";"
End Sub
Sub Kept(ByVal x)
  x = 0
End Sub
Sub Local
  Dim n, list(1)
  n = 1
  list(0) = 1
  Show n
  Show list(0)
  Kept n
  ExecuteGlobal "Sub Show(x) : x = x + 1 : End Sub : Sub Kept(x) : x = x + 10 : End Sub"
  Show n
  Show list(0)
  Kept n
  Kept list(0)
  WScript.Echo n, list(0)
End Sub
Local '> 1;1;12 12
