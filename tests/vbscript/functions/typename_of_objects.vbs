Class Bomba
End Class
Set b = New Bomba
WScript.Echo TypeName(b) '> Bomba
WScript.Echo TypeName(CreateObject("Scripting.Dictionary")) '> Dictionary
