Set hecho = CreateObject("Scripting.Dictionary")
Function Caminos(f, c)
  Dim k
  k = f & "," & c
  If f = 0 Or c = 0 Then
    Caminos = 1
  ElseIf hecho.Exists(k) Then
    Caminos = hecho(k)
  Else
    Caminos = Caminos(f - 1, c) + Caminos(f, c - 1)
    hecho.Add k, Caminos
  End If
End Function
WScript.Echo Caminos(2, 2), Caminos(10, 10), hecho.Count '> 6 184756 100
