Set d = CreateObject("Scripting.Dictionary")
WScript.Echo d.Count '> 0
Set d = CreateObject("SCRIPTING.DICTIONARY")
WScript.Echo IsObject(d) '> True
