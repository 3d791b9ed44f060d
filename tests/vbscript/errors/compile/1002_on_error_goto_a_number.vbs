On Error GoTo 5 '! 1002
