' The result of a conversion to a number or a date must go somewhere: 458 unless the argument is wrong already.
On Error Resume Next
Call CDbl(9) : WScript.Echo Err.Number : Err.Clear '> 458
CDbl 9 : WScript.Echo Err.Number : Err.Clear '> 458
Call CDbl("nueve") : WScript.Echo Err.Number : Err.Clear '> 13
CByte 300 : WScript.Echo Err.Number : Err.Clear '> 6
CByte 200 : WScript.Echo Err.Number : Err.Clear '> 458
CCur "1" : WScript.Echo Err.Number : Err.Clear '> 458
CDate "1/1/2020" : WScript.Echo Err.Number : Err.Clear '> 458
CInt 40000 : WScript.Echo Err.Number : Err.Clear '> 6
CInt 4 : WScript.Echo Err.Number : Err.Clear '> 458
Call CLng(Null) : WScript.Echo Err.Number : Err.Clear '> 94
Call CLng(True) : WScript.Echo Err.Number : Err.Clear '> 458
CSng (1.5) : WScript.Echo Err.Number : Err.Clear '> 458
CInt : WScript.Echo Err.Number : Err.Clear '> 450
CInt 1, 2 : WScript.Echo Err.Number : Err.Clear '> 450
Execute "CLng 5" : WScript.Echo Err.Number : Err.Clear '> 458
' The others may be called for nothing.
CStr 5 : CBool 1 : Hex 255 : Abs -1 : Len "a" : UCase "a" : Round 1.5
WScript.Echo Err.Number '> 0
d = CDbl(9) : e = CLng(CInt("3")) + CByte(1)
WScript.Echo Err.Number, d, e '> 0 9 4
