For a = 1 To 2 : For b = 1 To 2 : For c = 1 To 2 : For d = 1 To 2 : For e = 1 To 2
For f = 1 To 2 : For g = 1 To 2 : For h = 1 To 2 : For i = 1 To 2 : For j = 1 To 2
n = n + 1
Next : Next : Next : Next : Next : Next : Next : Next : Next : Next
WScript.Echo n '> 1024
