WScript.Echo CBool("#True#"), CBool("#TRUE#"), CBool("#false#"), CBool("TRUE"), CBool("faLSE") '> True True False True False
If "#TRUE#" Then WScript.Echo "si" '> si
If "#False#" Then WScript.Echo "no"
WScript.Echo CBool("0"), CBool("-2"), CBool("0,5") '> False True True
On Error Resume Next
x = 7
x = CLng("#True#") : WScript.Echo Err.Number, x : Err.Clear '> 13 7
x = CInt("#True#") : WScript.Echo Err.Number : Err.Clear '> 13
x = CByte("#False#") : WScript.Echo Err.Number : Err.Clear '> 13
x = CDbl("#True#") : WScript.Echo Err.Number : Err.Clear '> 13
x = CSng("True") : WScript.Echo Err.Number : Err.Clear '> 13
x = CCur("#True#") : WScript.Echo Err.Number : Err.Clear '> 13
x = CDate("#True#") : WScript.Echo Err.Number : Err.Clear '> 13
x = 1 + "True" : WScript.Echo Err.Number : Err.Clear '> 13
x = CBool("#True") : WScript.Echo Err.Number : Err.Clear '> 13
x = CBool("") : WScript.Echo Err.Number : Err.Clear '> 13
x = CBool("verdadero") : WScript.Echo Err.Number : Err.Clear '> 13
WScript.Echo IsNumeric("#True#"), IsNumeric("True"), IsDate("#True#") '> False False False
