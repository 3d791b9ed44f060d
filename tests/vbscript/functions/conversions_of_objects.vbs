' An object gives the value of its default property.
Class Caja
  Private m
  Public Default Property Get Valor : Valor = m : End Property
  Public Property Let Valor(v) : m = v : End Property
End Class
Class Vacia : End Class
Set c = New Caja
c.Valor = "12"
WScript.Echo CSng(c), CDbl(c), CInt(c), CLng(c), CByte(c), CCur(c), CStr(c), Hex(c), Oct(c) '> 12 12 12 12 12 12 12 C 14
c.Valor = "#True#"
WScript.Echo CBool(c) '> True
c.Valor = 0
WScript.Echo CBool(c), CDate(c) = CDate(0), Round(c), Abs(c), Sgn(c), Not c '> False True 0 0 0 -1
c.Valor = "2/1/2020"
WScript.Echo Month(c), Day(CDate(c)), DateValue(c) = DateSerial(2020, 1, 2) '> 1 2 True
On Error Resume Next
c.Valor = Null
x = CInt(c) : WScript.Echo Err.Number : Err.Clear '> 94
x = CBool(New Vacia) : WScript.Echo Err.Number : Err.Clear '> 438
x = CSng(New Vacia) : WScript.Echo Err.Number : Err.Clear '> 438
x = CStr(Nothing) : WScript.Echo Err.Number : Err.Clear '> 91
x = CLng(Nothing) : WScript.Echo Err.Number : Err.Clear '> 91
x = CDbl(CreateObject("Scripting.Dictionary")) : WScript.Echo Err.Number : Err.Clear '> 450
