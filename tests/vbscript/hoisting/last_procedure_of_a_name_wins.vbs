F '> segunda
Sub F
  WScript.Echo "primera"
End Sub
Sub F
  WScript.Echo "segunda"
End Sub
F '> segunda
