If 1 < 2 Then WScript.Echo "sí" '> sí
If 1 > 2 Then WScript.Echo "nunca" Else WScript.Echo "no" '> no
