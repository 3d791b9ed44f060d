With CreateObject("Scripting.Dictionary") : .Add 1, 2 : WScript.Echo .Count : End With
'> 1
