Dim lista
Sub Permuta(hecho, resto)
  If resto = "" Then
    lista = lista & hecho & " "
    Exit Sub
  End If
  Dim i
  For i = 1 To Len(resto)
    Permuta hecho & Mid(resto, i, 1), Left(resto, i - 1) & Mid(resto, i + 1)
  Next
End Sub
Permuta "", "abc"
WScript.Echo Trim(lista) '> abc acb bac bca cab cba
