fuente = "; comentario" & vbCrLf & "[General]" & vbCrLf & "puerto = 502" & vbCrLf & _
         "ip=10.0.0.1" & vbCrLf & vbCrLf & "[Otros]" & vbCrLf & "puerto=503"
Set seccion = New RegExp
seccion.Pattern = "^\s*\[(.+)\]\s*$"
Set par = New RegExp
par.Pattern = "^\s*([^=;]+?)\s*=\s*(.*?)\s*$"
Set valores = CreateObject("Scripting.Dictionary")
valores.CompareMode = vbTextCompare
For Each linea In Split(fuente, vbCrLf)
  If seccion.Test(linea) Then
    actual = seccion.Execute(linea)(0).SubMatches(0)
  ElseIf par.Test(linea) Then
    With par.Execute(linea)(0)
      valores(actual & "." & .SubMatches(0)) = .SubMatches(1)
    End With
  End If
Next
WScript.Echo valores.Count, valores("general.PUERTO"), valores("General.ip"), valores("otros.puerto") '> 3 502 10.0.0.1 503
