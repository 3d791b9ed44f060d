WScript.Echo Round(2 > 1), TypeName(Round(2 > 1)), Round(False, 3), TypeName(Round(False, 3)) '> True Boolean False Boolean
WScript.Echo TypeName(Abs(True)), Abs(True), TypeName(Int(True)), TypeName(Fix(True)) '> Integer 1 Integer Integer
On Error Resume Next
x = Round(True, -1) : WScript.Echo Err.Number '> 5
