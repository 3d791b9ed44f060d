Class K
  Public a, b
  Public Sub Pon
    With Me
      .a = 1
      .b = .a + 1
    End With
  End Sub
End Class
Set o = New K
o.Pon
WScript.Echo o.a, o.b '> 1 2
