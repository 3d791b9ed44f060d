On Error Resume Next
v = 9
For v = 1 To 5 \ 0 : n = n + 1 : Next
WScript.Echo v, n, Err.Number '> 9 1 92
For v = 5 \ 0 To 7 : n = n + 1 : Next
WScript.Echo v, n, Err.Number '> 9 2 92
For v = 1 To 7 Step 5 \ 0 : n = n + 1 : Next
WScript.Echo v, n, Err.Number '> 9 3 92
For v = 1 To "siete" : n = n + 1 : Next
WScript.Echo v, n, Err.Number '> 9 4 92
For v = "uno" To 3 : n = n + 1 : Next
WScript.Echo v, n, Err.Number '> 9 5 92
For v = 1 To 3 Step "uno" : n = n + 1 : Next
WScript.Echo v, n, Err.Number '> 9 6 92
For v = 1 To Null : n = n + 1 : Next
WScript.Echo v, n, Err.Number '> 9 7 92
Err.Clear
Function Mira(x)
  WScript.Echo "v es", v
  Mira = x
End Function
For v = Mira(1) To Mira(2) Step Mira(1)
Next
'> v es 9
'> v es 9
'> v es 9
WScript.Echo v, Err.Number '> 3 0
