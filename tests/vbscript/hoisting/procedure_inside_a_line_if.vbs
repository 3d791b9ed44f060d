If False Then Sub Oculta : WScript.Echo "oculta" : End Sub : x = 1
Oculta '> oculta
WScript.Echo TypeName(x) '> Empty
