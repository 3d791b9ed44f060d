For i = 1 To 3 : s = s & i : Next
Do While Len(s) < 5 : s = s & "x" : Loop
While Len(s) < 7 : s = s & "y" : Wend
For Each v In Array(8, 9) : s = s & v : Next
WScript.Echo s '> 123xxyy89
