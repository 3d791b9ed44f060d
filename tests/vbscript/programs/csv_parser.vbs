Function Campos(linea)
  Dim lista(), n, i, c, dentro
  ReDim lista(0)
  For i = 1 To Len(linea)
    c = Mid(linea, i, 1)
    If c = """" Then
      If dentro And Mid(linea, i + 1, 1) = """" Then
        lista(n) = lista(n) & """"
        i = i + 1
      Else
        dentro = Not dentro
      End If
    ElseIf c = ";" And Not dentro Then
      n = n + 1
      ReDim Preserve lista(n)
    Else
      lista(n) = lista(n) & c
    End If
  Next
  Campos = lista
End Function
a = Campos("1;""dos; y medio"";;""dijo """"sí"""""";fin")
WScript.Echo UBound(a) '> 4
WScript.Echo a(1), "[" & a(2) & "]", a(3), a(4) '> dos; y medio [] dijo "sí" fin
