' An object with a default property where a value is wanted.
Class Num
    Public n
    Public Default Property Get Value: Value = n: End Property
    Public Property Let Value(v): n = v: End Property
End Class
Class Part
    Private items
    Private Sub Class_Initialize: items = Array(10, 20, 30): End Sub
    Public Default Property Get Item(i): Item = items(i): End Property
    Public Property Let Item(i, v): items(i) = v: End Property
End Class
Function Made(n): Set Made = New Num: Made.n = n: End Function
Set a = Made(3): Set b = Made(4)
WScript.Echo a + b, a * b, a & b, -a, +a, a < b, a = 3, Not a, a Mod 2, a \ 2, a ^ 2, a And 1 '> 7 12 34 -3 3 True True -4 1 1 9 1
x = a: WScript.Echo TypeName(x), x '> Integer 3
WScript.Echo Abs(Made(-2)), Len(Made("four")), UCase(Made("up")), CStr(Made(1.5)), Left("abcdef", Made(2)), Array(1, 2, 3)(Made(1)), Hex(Made(255)) '> 2 4 UP 1,5 ab 2 FF
If Made(True) Then WScript.Echo "true" '> true
Select Case Made(2): Case 1: WScript.Echo "one": Case Made(2): WScript.Echo "two": End Select '> two
For i = Made(1) To Made(3) Step Made(2): s = s & i: Next: WScript.Echo s '> 13
Dim l(3): l(Made(2)) = 5: WScript.Echo l(2), l(Made(2)): ReDim m(Made(4)): WScript.Echo UBound(m)
'> 5 5
'> 4
Set d = CreateObject("Scripting.Dictionary"): d("k") = Made(8): WScript.Echo TypeName(d("k")), d("k"): Set d("o") = Made(8): WScript.Echo TypeName(d("o"))
'> Integer 8
'> Num
Set p = New Part: WScript.Echo p(1), p.Item(2): p(1) = 21: WScript.Echo p(1): p(Made(0)) = Made(11): WScript.Echo p(0)
'> 20 30
'> 21
'> 11
On Error Resume Next
WScript.Echo TypeName(p) '> Part
x = p: WScript.Echo Err.Number: Err.Clear '> 450
x = p(9): WScript.Echo Err.Number: Err.Clear '> 9
x = p(0, 1): WScript.Echo Err.Number: Err.Clear '> 450
Set p(0) = a: WScript.Echo Err.Number: Err.Clear '> 438
x = a(1): WScript.Echo Err.Number: Err.Clear '> 450
x = Made("text") + 1: WScript.Echo Err.Number: Err.Clear '> 13
x = Made(Null) + 1: WScript.Echo IsNull(x), Err.Number '> True 0
x = Made(Empty) & "e": WScript.Echo x, Err.Number '> e 0
Set n = Made(1): Set n.n = New Num: x = n + 1: WScript.Echo Err.Number, x: Err.Clear '> 0 1
