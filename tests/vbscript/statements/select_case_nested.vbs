For Each p In Array("1a", "1b", "2a")
  Select Case Left(p, 1)
    Case "1"
      Select Case Right(p, 1)
        Case "a" : s = s & "A"
        Case "b" : s = s & "B"
      End Select
    Case "2"
      s = s & "2"
  End Select
Next
WScript.Echo s '> AB2
