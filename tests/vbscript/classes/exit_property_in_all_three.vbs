Class C
  Property Set P(o)
    WScript.Echo "set"
    Exit Property
    WScript.Echo "no"
  End Property
  Property Let P(o)
    WScript.Echo "let"
    Exit Property
    WScript.Echo "no"
  End Property
  Property Get P
    P = 1
    Exit Property
    P = 2
  End Property
End Class
Set c1 = New C
Set c1.P = c1 '> set
c1.P = 3 '> let
WScript.Echo c1.P '> 1
