a = True : b = False
If a Then
  If b Then
    WScript.Echo "los dos"
  Else
    WScript.Echo "solo a" '> solo a
  End If
End If
