On Error Resume Next
Set d = CreateObject("Scripting.Dictionary")
x = d.NoExiste
a = Err.Description
y = (New K).Otro
WScript.Echo Err.Number, a = Err.Description '> 438 True
Execute "Option Explicit : z = 1"
b = Err.Description
Execute "Option Explicit : w = 1"
WScript.Echo Err.Number, b = Err.Description, InStr(b, "z") '> 500 True 0
Err.Clear : Err.Raise 438
WScript.Echo a = Err.Description '> True
Class K
End Class
Nada1 1
c = Err.Description
Nada2 2
WScript.Echo Err.Number, c = Err.Description '> 13 True
Set o = New Falta
WScript.Echo Err.Number, InStr(Err.Description, "Falta") '> 506 0
