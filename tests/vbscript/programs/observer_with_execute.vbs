Dim registro
Class Emisor
  Private oyentes, n
  Private Sub Class_Initialize
    Set oyentes = CreateObject("Scripting.Dictionary")
  End Sub
  Public Sub Apunta(nombre)
    oyentes.Add oyentes.Count, GetRef(nombre)
  End Sub
  Public Sub Avisa(dato)
    Dim k, f
    For Each k In oyentes.Keys
      Set f = oyentes(k)
      f dato
    Next
  End Sub
End Class
Sub Uno(d) : registro = registro & "uno:" & d & " " : End Sub
ExecuteGlobal "Sub Dos(d) : registro = registro & ""dos:"" & d & "" "" : End Sub"
Set e = New Emisor
e.Apunta "Uno"
e.Apunta "Dos"
e.Avisa 5
e.Avisa "x"
WScript.Echo Trim(registro) '> uno:5 dos:5 uno:x dos:x
