Function Json(v)
  Dim k, partes, n
  If IsObject(v) Then
    For Each k In v.Keys
      If n > 0 Then partes = partes & ","
      partes = partes & Texto(k) & ":" & Json(v.Item(k))
      n = n + 1
    Next
    Json = "{" & partes & "}"
  ElseIf IsArray(v) Then
    For Each k In v
      If n > 0 Then partes = partes & ","
      partes = partes & Json(k)
      n = n + 1
    Next
    Json = "[" & partes & "]"
  Else
    Select Case VarType(v)
      Case vbString
        Json = Texto(v)
      Case vbBoolean
        If v Then Json = "true" Else Json = "false"
      Case vbNull, vbEmpty
        Json = "null"
      Case Else
        Json = Replace(CStr(v), ",", ".")
    End Select
  End If
End Function
Function Texto(ByVal t)
  t = Replace(t, "\", "\\")
  t = Replace(t, """", "\""")
  Texto = """" & Replace(t, vbLf, "\n") & """"
End Function
Set o = CreateObject("Scripting.Dictionary")
o.Add "nombre", "bomba ""1"""
o.Add "caudal", 12.5
o.Add "activa", True
o.Add "lista", Array(1, "dos", Null, Array())
Set o("dentro") = CreateObject("Scripting.Dictionary")
WScript.Echo Json(o)
'> {"nombre":"bomba \"1\"","caudal":12.5,"activa":true,"lista":[1,"dos",null,[]],"dentro":{}}
