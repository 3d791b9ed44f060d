' The script's global object: variables, arrays, objects, procedures and what cannot be assigned.
Dim list(2), box, word
Const fixedOne = 7
Sub Raise(n): n = n + 1: End Sub
Function Twice(n): Twice = n * 2: End Function
Me.list(1) = 5: WScript.Echo list(1), Me.list(1), UBound(Me.list) '> 5 5 2
Set Me.box = CreateObject("Scripting.Dictionary"): Me.box("k") = 3: WScript.Echo box("k"), Me.box.Count, Me.box("k") '> 3 1 3
Me.box = 4: WScript.Echo box, TypeName(Me.box) '> 4 Integer
Set Me.word = New RegExp: Me.word.Pattern = "x": WScript.Echo word.Pattern '> x
WScript.Echo Me.fixedOne, Me.Twice(4), Me.Twice(Me.fixedOne) '> 7 8 14
v = 1: Me.Raise v: WScript.Echo v: Me.Raise (v): WScript.Echo v: Me.Raise list(0): WScript.Echo list(0)
'> 2
'> 2
'> 1
On Error Resume Next
Me.fixedOne = 8: WScript.Echo Err.Number, fixedOne: Err.Clear '> 501 7
Me.Twice = 8: WScript.Echo Err.Number: Err.Clear '> 438
Me.list = 8: WScript.Echo Err.Number: Err.Clear '> 13
Set Me.box = 5: WScript.Echo Err.Number: Err.Clear '> 424
x = Me.list(7): WScript.Echo Err.Number: Err.Clear '> 9
x = Me.box(1): WScript.Echo Err.Number: Err.Clear '> 13
Me.box(1) = 1: WScript.Echo Err.Number: Err.Clear '> 13
x = Me.Twice(): WScript.Echo Err.Number: Err.Clear '> 450
x = Me.nothingSuch: WScript.Echo Err.Number: Err.Clear '> 438
Me.nothingSuch 1: WScript.Echo Err.Number: Err.Clear '> 438
Me.fresh = 6: WScript.Echo Err.Number, fresh, Me.fresh '> 0 6 6
