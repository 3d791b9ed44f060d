' A variable goes by reference also to the function reference, or the object with a default member, that stands in an
' element, in a dictionary, in a public variable, or that a call hands out.
Function Raise1(n)
  n = n + 1
  Raise1 = n
End Function
Class Counter
  Public inner
  Public Default Function Up(n)
    n = n + 10
    Up = n
  End Function
  Public Function Itself
    Set Itself = Me
  End Function
  Public Sub Own
    Dim n
    n = 1
    Set inner = GetRef("Raise1")
    x = Me.inner(n)
    WScript.Echo n
  End Sub
End Class
Function Give(which)
  Set Give = GetRef(which)
End Function

Dim v, x, list, d, c
v = 1
x = Give("Raise1")(v)
WScript.Echo x & " " & v '> 2 2
list = Array(GetRef("Raise1"), New Counter)
x = list(0)(v)
WScript.Echo x & " " & v '> 3 3
x = list(1)(v)
WScript.Echo x & " " & v '> 13 13
list(0) v
WScript.Echo v '> 14
Call list(1)(v)
WScript.Echo v '> 24
list(0) (v)
WScript.Echo v '> 24
Call list(0)((v))
WScript.Echo v '> 24
Set d = CreateObject("Scripting.Dictionary")
Set d("up") = GetRef("Raise1")
x = d("up")(v)
WScript.Echo x & " " & v '> 25 25
d("up") v
Call d.Item("up")(v)
WScript.Echo v '> 27
Set c = New Counter
Set c.inner = c
x = c.Itself()(v)
WScript.Echo x & " " & v '> 37 37
x = c.inner(v)
WScript.Echo x & " " & v '> 47 47
c.inner v
With c
  .inner v
End With
WScript.Echo v '> 67
c.Own '> 2

' An element goes there and comes back; in a procedure as outside.
Sub Local
  Dim place, f(1), n(1)
  place = 5
  Set f(0) = GetRef("Raise1")
  n(1) = 7
  x = f(0)(place)
  x = f(0)(n(1))
  WScript.Echo place & " " & n(1)
End Sub
Local '> 6 8

' What is no code takes its index as before.
Dim grid, i
grid = Array(Array(1, 2), Array(3, 4))
i = 1
WScript.Echo grid(i)(i) & grid(1)(i - 1) '> 43
Set d("box") = CreateObject("Scripting.Dictionary")
d("box")(i) = "item"
WScript.Echo d("box")(i) '> item

' What the call was made through ends with its statement.
Class Watched
  Public Default Function Touch(n)
    n = n + 1
  End Function
  Private Sub Class_Terminate
    WScript.Echo "gone"
  End Sub
End Class
Function Fresh(any)
  Set Fresh = New Watched
End Function
x = Fresh(0)(v)
'> gone
WScript.Echo v '> 68
