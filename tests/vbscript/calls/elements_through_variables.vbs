' A variable that holds a procedure, or an object with a default method, gets an element by reference, as a name does.
Sub Fill(x)
    x = 9
End Sub
Class Filler
    Public Default Sub Fill(x)
        x = 8
    End Sub
End Class
Set p = GetRef("Fill")
Set f = New Filler
Dim a(3)
p a(0)
Call p(a(1))
f a(2)
Call f(a(3))
WScript.Echo a(0), a(1), a(2), a(3) '> 9 9 8 8
p (a(3))
WScript.Echo a(3) '> 8
Sub InAProcedure
    Dim b(1), q
    Set q = GetRef("Fill")
    q b(0)
    f b(1)
    WScript.Echo b(0), b(1) '> 9 8
End Sub
InAProcedure
