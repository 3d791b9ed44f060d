WScript.Echo Len(Trim(vbTab & " a " & vbCrLf)) '> 6
