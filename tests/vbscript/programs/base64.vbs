Const ALFABETO = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/"

Function Codifica(t)
  Dim i, n, falta
  For i = 1 To Len(t) Step 3
    falta = 3 - Len(Mid(t, i, 3))
    n = Asc(Mid(t, i, 1)) * 65536
    If falta < 2 Then n = n + Asc(Mid(t, i + 1, 1)) * 256
    If falta < 1 Then n = n + Asc(Mid(t, i + 2, 1))
    grupo = ""
    For k = 1 To 4
      grupo = Mid(ALFABETO, (n And 63) + 1, 1) & grupo
      n = n \ 64
    Next
    Codifica = Codifica & Left(grupo, 4 - falta) & String(falta, "=")
  Next
End Function

Function Descodifica(ByVal t)
  Dim i, n, k
  For i = 1 To Len(t) Step 4
    n = 0
    For k = 0 To 3
      c = Mid(t, i + k, 1)
      n = n * 64
      If c <> "=" Then n = n + InStr(1, ALFABETO, c, vbBinaryCompare) - 1
    Next
    Descodifica = Descodifica & Chr(n \ 65536) & Chr((n \ 256) And 255) & Chr(n And 255)
  Next
  Descodifica = Replace(Descodifica, Chr(0), "")
End Function

WScript.Echo Codifica("Hola, mundo!"), Codifica("ab"), Codifica("a") '> SG9sYSwgbXVuZG8h YWI= YQ==
WScript.Echo Descodifica("SG9sYSwgbXVuZG8h"), Descodifica("YQ==") '> Hola, mundo! a
