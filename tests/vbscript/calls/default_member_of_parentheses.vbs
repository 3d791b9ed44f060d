Class K
  Private m
  Public Default Function Init(a, b)
    m = a + b
    Set Init = Me
  End Function
  Public Property Get Value : Value = m : End Property
End Class
Set o = (New K)(1, 2)
WScript.Echo o.Value '> 3
v = (New K)(3, 4).Value
WScript.Echo v '> 7
a = Array(5, 6)
v = (a)(1)
WScript.Echo v '> 6
x = (o)(10, 20).Value + (a)(0)
WScript.Echo x '> 35
y = (1)(0) '! 13
