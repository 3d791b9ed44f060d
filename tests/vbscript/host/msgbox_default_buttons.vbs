' With nobody to answer, a box gives the button that its style makes the default one, or the first.
Dim style, place, row
For style = 0 To 5
  row = style & ":"
  For place = 0 To 3
    row = row & " " & MsgBox("x", style + 256 * place)
  Next
  WScript.Echo row
Next
'> 0: 1 1 1 1
'> 1: 1 2 1 1
'> 2: 3 4 5 3
'> 3: 6 7 2 6
'> 4: 6 7 6 6
'> 5: 4 2 4 4
WScript.Echo MsgBox("x", vbYesNo + vbQuestion + vbDefaultButton2 + vbSystemModal) '> 7
