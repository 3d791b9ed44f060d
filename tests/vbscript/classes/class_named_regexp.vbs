Class RegExp
  Public Pattern
  Public Default Property Get V
    V = "propia"
  End Property
End Class
Set r = New RegExp
r.Pattern = "b+"
WScript.Echo r.Test("abba"), TypeName(r) '> True IRegExp2
x = (New regexp).Global
WScript.Echo x '> False
