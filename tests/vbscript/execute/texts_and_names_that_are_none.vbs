' Execute takes texts, Eval any value, GetRef the name of a procedure.
On Error Resume Next
Sub P(x): WScript.Echo "P", x: End Sub
Execute 2.5: WScript.Echo Err.Number: Err.Clear '> 13
Execute Null: WScript.Echo Err.Number: Err.Clear '> 13
Execute Empty: WScript.Echo Err.Number: Err.Clear '> 13
Execute Array("x=1"): WScript.Echo Err.Number: Err.Clear '> 13
Execute New RegExp: WScript.Echo Err.Number: Err.Clear '> 438
ExecuteGlobal True: WScript.Echo Err.Number: Err.Clear '> 13
ExecuteGlobal #1/1/2020#: WScript.Echo Err.Number: Err.Clear '> 13
Execute "": WScript.Echo Err.Number: Err.Clear '> 0
Execute "   " & vbCrLf & "' c": WScript.Echo Err.Number: Err.Clear '> 0
WScript.Echo Eval(5), Eval(True), IsArray(Eval(Array(1))), Eval(Nothing) Is Nothing, Err.Number '> 5 True True True 0
WScript.Echo Eval("1 : 2"): WScript.Echo Err.Number: Err.Clear '> 1025
WScript.Echo Eval("x = 5"), IsEmpty(x), Err.Number '> False True 0
WScript.Echo Eval("  3  + " & " _" & vbCrLf & " 4"), Err.Number '> 7 0
Set r = GetRef("nope"): WScript.Echo Err.Number: Err.Clear '> 5
Set r = GetRef(Null): WScript.Echo Err.Number: Err.Clear '> 13
Set r = GetRef(Empty): WScript.Echo Err.Number: Err.Clear '> 13
Set r = GetRef(5): WScript.Echo Err.Number: Err.Clear '> 13
Set r = GetRef(" P "): WScript.Echo Err.Number: Err.Clear '> 5
Set r = GetRef("Len"): WScript.Echo Err.Number: Err.Clear '> 5
Set r = GetRef("p"): WScript.Echo Err.Number: r 3
'> 0
'> P 3
GetRef("nope"): WScript.Echo Err.Number: Err.Clear '> 0
GetRef "P": WScript.Echo Err.Number: Err.Clear '> 0
WScript.Echo TypeName(GetRef("P")), IsObject(r), VarType(r), GetRef("P") Is GetRef("P"), r Is r '> Object True 9 False True
r: WScript.Echo Err.Number: Err.Clear '> 450
r 1, 2: WScript.Echo Err.Number: Err.Clear '> 450
x = r(1): WScript.Echo Err.Number, IsEmpty(x): Err.Clear
'> P 1
'> 0 True
