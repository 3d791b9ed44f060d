Set a = CreateObject("Scripting.Dictionary")
Set b = a
Set c = CreateObject("Scripting.Dictionary")
WScript.Echo a Is b, a Is c, a Is Nothing, Nothing Is Nothing '> True False False True
WScript.Echo Not a Is c '> True
