Function Clave(t)
  Dim a(), i, j, x
  ReDim a(Len(t) - 1)
  For i = 1 To Len(t)
    a(i - 1) = Mid(t, i, 1)
  Next
  For i = 1 To UBound(a)
    x = a(i)
    j = i - 1
    Do While j >= 0
      If a(j) <= x Then Exit Do
      a(j + 1) = a(j)
      j = j - 1
    Loop
    a(j + 1) = x
  Next
  Clave = Join(a, "")
End Function
Set grupos = CreateObject("Scripting.Dictionary")
For Each p In Split("roma amor mora cosa caso saco luz")
  grupos(Clave(p)) = Trim(grupos(Clave(p)) & " " & p)
Next
WScript.Echo Join(grupos.Items, ", ") '> roma amor mora, cosa caso saco, luz
