' What stands right of = goes to a Property Let as a value, from inside the class as from outside; so do its indexes.
Class Meter
  Public kept
  Property Let Level(x)
    x = x + 1
    kept = x
  End Property
  Property Let At(i, x)
    i = i + 1
    x = x + 1
    kept = i & " " & x
  End Property
  Property Set Other(x)
    Set x = Nothing
  End Property
  Sub Inside
    Dim n, i, o
    n = 1
    Level = n
    WScript.Echo n, kept '> 1 2
    Me.Level = n
    WScript.Echo n, kept '> 1 2
    i = 5
    At(i) = n
    WScript.Echo n, i, kept '> 1 5 6 2
    Me.At(i) = n
    WScript.Echo n, i, kept '> 1 5 6 2
    Set o = Me
    Set Other = o
    Set Me.Other = o
    WScript.Echo TypeName(o) '> Meter
  End Sub
End Class
Set m = New Meter
m.Inside
n = 1
i = 5
m.Level = n
WScript.Echo n, m.kept '> 1 2
m.At(i) = n
WScript.Echo n, i, m.kept '> 1 5 6 2
