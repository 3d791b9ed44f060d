' Two objects that hold each other do not disturb the end of the script.
Class K
  Public otro
End Class
Set a = New K
Set b = New K
Set a.otro = b
Set b.otro = a
Set a = Nothing
Set b = Nothing
WScript.Echo "fin" '> fin
