' What stands right of an assignment, and the indexes left of it, are values: a Property Let or Set that changes its
' parameters changes no variable of the assignment, be it written inside the class or outside.
Class Box
  Public got
  Public Property Let Plain(v)
    got = v
    v = 99
  End Property
  Public Property Let At(i, v)
    got = i & ":" & v
    i = 77
    v = 99
  End Property
  Public Property Set Thing(v)
    Set got = v
    Set v = Nothing
  End Property
  Public Property Let List(v)
    v(0) = "changed"
    got = v(0)
  End Property
  Public Sub Inside
    Dim y, z, w, a
    y = 1 : z = 2
    Plain = y : WScript.Echo got, y '> 1 1
    Me.Plain = y : WScript.Echo got, y '> 1 1
    At(z) = y : WScript.Echo got, y, z '> 2:1 1 2
    Me.At(z) = y : WScript.Echo got, y, z '> 2:1 1 2
    Set w = New RegExp
    Set Thing = w : WScript.Echo TypeName(got), w Is got '> IRegExp2 True
    Set Me.Thing = w : WScript.Echo TypeName(got), w Is got '> IRegExp2 True
    a = Array("first")
    List = a : WScript.Echo got, a(0) '> changed first
    a = Array(5)
    Plain = a(0) : WScript.Echo got, a(0) '> 5 5
    At(a(0)) = a(0) : WScript.Echo got, a(0) '> 5:5 5
  End Sub
End Class
Dim o, y, z, w, a
Set o = New Box
o.Inside
y = 1 : z = 2
o.Plain = y : WScript.Echo o.got, y '> 1 1
o.At(z) = y : WScript.Echo o.got, y, z '> 2:1 1 2
Set w = New RegExp
Set o.Thing = w : WScript.Echo w Is o.got '> True
a = Array("first")
o.List = a : WScript.Echo o.got, a(0) '> changed first
