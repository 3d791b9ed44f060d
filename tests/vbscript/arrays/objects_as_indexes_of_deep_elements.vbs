' An object as an index stands for its default value, at every level of an assignment into arrays within arrays.
Class Num
    Public n
    Public Default Property Get Value
        asked = asked & n
        Value = n
    End Property
End Class
Function Made(n)
    Set Made = New Num
    Made.n = n
End Function
a = Array(Array(0, 1), Array(2, 3))
a(Made(1))(0) = 5
a(0)(Made(1)) = 6
WScript.Echo a(0)(0), a(0)(1), a(1)(0), a(1)(1) '> 0 6 5 3
a(Made(0))(Made(0)) = 7
WScript.Echo a(0)(0), a(0)(1), a(1)(0), a(1)(1) '> 7 6 5 3
Dim grid(1, 1)
grid(1, 0) = Array(1, Array(2, 3))
asked = ""
grid(Made(1), 0)(1)(Made(0)) = 8
WScript.Echo grid(1, 0)(1)(0), grid(1, 0)(1)(1), asked '> 8 3 10
grid(1, Made(0))(Made(1))(1) = 9
WScript.Echo grid(1, 0)(1)(0), grid(1, 0)(1)(1), asked '> 8 9 1001
Sub InAProcedure
    Dim b
    b = Array(Array(0, 0), 0)
    b(Made(0))(Made(1)) = 4
    WScript.Echo b(0)(0), b(0)(1) '> 0 4
    Set b(Made(0))(0) = Made(3)
    WScript.Echo TypeName(b(0)(0)), b(0)(1) '> Num 4
End Sub
InAProcedure
' The default member may change the array that is written.
Class Changer
    Public Default Property Get Value
        c = Array(Array(1, 1), Array(2, 2))
        Value = 1
    End Property
End Class
c = Array(Array(0, 0), Array(0, 0))
c(New Changer)(0) = 9
WScript.Echo c(0)(0), c(1)(0), c(1)(1) '> 1 9 2
On Error Resume Next
a(Made("x"))(0) = 1
WScript.Echo Err.Number: Err.Clear '> 13
a(Made(2))(0) = 1
WScript.Echo Err.Number: Err.Clear '> 9
