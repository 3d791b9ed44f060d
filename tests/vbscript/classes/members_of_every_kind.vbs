' Fields, methods, properties with indexes and objects handed on.
Class C
    Public v
    Public Sub Bump(ByRef x): x = x + 1: End Sub
    Public Function G(n): G = n * 2: End Function
    Public Property Get P(i): P = i & v: End Property
    Public Property Let P(i, w): v = i & w: End Property
    Public Property Get Q: Set Q = Me: End Property
End Class
Set o = New C: o.v = 1: o.Bump o.v: WScript.Echo o.v '> 1
o.P(2) = 3: WScript.Echo o.v, o.P(1), o.Q.Q.v, o.Q.P(5) '> 23 123 23 523
With o: .v = 9: With .Q: .v = .v + 1: End With: .Bump .v: WScript.Echo .v, .G(.v), .G (.v): .P(1) = .G(2): WScript.Echo .v: End With
'> 10 20 20
'> 14
WScript.Echo o.G(o.G(2)) + o.G (3), TypeName(o), o Is o.Q, Not o Is Nothing '> 14 C True True
Dim arr(1): Set arr(0) = o: arr(0).v = 7: WScript.Echo arr(0).v, o.v: arr(0).Bump arr(1): WScript.Echo arr(1)
'> 7 7
'> 1
Set d = CreateObject("Scripting.Dictionary"): Set d("o") = o: d("o").v = 8: WScript.Echo o.v, d("o").G(1), d.Item("o").P(0) '> 8 2 08
x = 1: o.Bump x: WScript.Echo x: o.Bump (x): WScript.Echo x: Call o.Bump(x): WScript.Echo x: Call o.Bump((x)): WScript.Echo x
'> 2
'> 2
'> 3
'> 3
On Error Resume Next
WScript.Echo o.P: WScript.Echo Err.Number: Err.Clear '> 450
WScript.Echo o.Nope: WScript.Echo Err.Number: Err.Clear '> 438
WScript.Echo o.G: WScript.Echo Err.Number: Err.Clear '> 450
WScript.Echo o.G(1, 2): WScript.Echo Err.Number: Err.Clear '> 450
o.G = 1: WScript.Echo Err.Number: Err.Clear '> 438
o.Q = 1: WScript.Echo Err.Number: Err.Clear '> 438
Set o.v = 5: WScript.Echo Err.Number: Err.Clear '> 424
WScript.Echo o.v(): WScript.Echo Err.Number: Err.Clear '> 5
WScript.Echo o.v(1): WScript.Echo Err.Number: Err.Clear '> 438
x = New C: WScript.Echo Err.Number: Err.Clear '> 438
Set x = New Nope: WScript.Echo Err.Number: Err.Clear '> 506
