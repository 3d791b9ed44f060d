Set d = CreateObject("Scripting.Dictionary")
WScript.Echo UBound(d.Keys), UBound(d.Items) '> -1 -1
