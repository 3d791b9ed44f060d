Function F(n)
  If n = 1 Then Execute "Dim propia : propia = 1"
  F = TypeName(propia)
  If n = 1 Then F = F & " " & F2() & " " & TypeName(propia)
End Function
Function F2
  F2 = F(2)
End Function
WScript.Echo F(1) '> Integer Empty Integer
WScript.Echo TypeName(propia) '> Empty
Class K
  Sub M
    Execute "Dim local : local = 3"
    WScript.Echo local '> 3
  End Sub
End Class
Set o = New K
o.M
WScript.Echo TypeName(local) '> Empty
