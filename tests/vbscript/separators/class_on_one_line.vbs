Class C : Public x : Public Function F : F = x + 1 : End Function : End Class
Set o = New C : o.x = 4 : WScript.Echo o.F '> 5
