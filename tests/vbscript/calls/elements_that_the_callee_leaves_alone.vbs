' An element that went by reference comes home only if the procedure has changed its parameter; what else changed the
' element meanwhile stays.
Class Keeper
  Public list
  Sub Add(given)
    a(0) = given + 1
  End Sub
  Sub Both(given)
    a(0) = 5
    given = 9
  End Sub
  Sub Deep(given)
    Dim row
    row = b(0)
    row(1) = given & "!"
    b(0) = row
  End Sub
  Sub Own(given)
    list(0) = given * 10
  End Sub
  Sub Run
    list = Array(4)
    Own list(0)
    WScript.Echo list(0)
  End Sub
  Sub Two(x, y)
    x = 3
    WScript.Echo x
  End Sub
  Sub Grow(given)
    given = given & "c"
  End Sub
  Sub Fill(given)
    given(0) = "in"
  End Sub
  Sub Retype(given)
    given = CInt(given)
  End Sub
End Class
Dim a, b, o
Set o = New Keeper
a = Array(1, 2)
o.Add a(0)
WScript.Echo a(0) '> 2
o.Both a(0)
WScript.Echo a(0) '> 9
b = Array(Array("x", "y"))
o.Deep b(0)(1)
WScript.Echo b(0)(1) '> y!
o.Run '> 40
a = Array(1, 2)
o.Two a(0), a(0) '> 3
WScript.Echo a(0) '> 3
a = Array("ab")
o.Grow a(0)
WScript.Echo a(0) '> abc
a = Array(Array("out"))
o.Fill a(0)
WScript.Echo a(0)(0) '> in
a = Array(0)
o.Retype a(0)
WScript.Echo TypeName(a(0)) '> Integer
a = Array(CLng(0))
o.Retype a(0)
WScript.Echo TypeName(a(0)) '> Integer
a = Array(Empty)
o.Retype a(0)
WScript.Echo TypeName(a(0)) '> Integer

ExecuteGlobal "Sub Later(given) : a(0) = given + 1 : End Sub"
a = Array(1)
Later a(0)
WScript.Echo a(0) '> 2
Set r = GetRef("Known")
Sub Known(given)
  If given > 100 Then given = 0
  a(0) = given + 1
End Sub
r a(0)
WScript.Echo a(0) '> 3
Known a(0)
WScript.Echo a(0) '> 4

' Objects go at once when nothing holds them any more.
Class Bell
  Sub Class_Terminate
    WScript.Echo "gone"
  End Sub
End Class
Sub Drop(given)
  Set given = Nothing
  WScript.Echo "dropped"
End Sub
Sub Keep(given)
  WScript.Echo TypeName(given)
End Sub
Class Caller
  Sub Drop(given)
    Set given = Nothing
  End Sub
End Class
a = Array(New Bell)
Keep a(0) '> Bell
Set c = New Caller
c.Drop a(0) '> gone
WScript.Echo "after" '> after
WScript.Echo a(0) Is Nothing '> True
