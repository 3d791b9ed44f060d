Select Case "a" Case "a" WScript.Echo "uno" End Select
'> uno
