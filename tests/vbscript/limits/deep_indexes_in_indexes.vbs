' What a variable holds, array or reference to a function, shows only when the text runs; forty of them in each other
' are compiled at once all the same.
Function Nested(name, levels)
  Dim i
  Nested = "0"
  For i = 1 To levels
    Nested = name & "(" & Nested & ")"
  Next
End Function
Function Adds(n)
  Adds = n + 1
End Function
Sub Fills(n)
  n = n + 100
End Sub
Dim a, f, x
a = Array(0)
Set f = GetRef("Adds")
x = -1
Execute "x = " & Nested("a", 40) : WScript.Echo x '> 0
Execute "x = " & Nested("f", 40) : WScript.Echo x '> 40
Execute "x = " & Nested("a", 20) & " + " & Nested("f", 20) : WScript.Echo x '> 20
Execute "Fills " & Nested("a", 40) : WScript.Echo a(0) '> 100
a = Array(0)
Sub Local
  Dim b, g
  b = Array(0)
  Set g = f
  Execute "x = " & Nested("b", 40) : WScript.Echo x '> 0
  Execute "x = " & Nested("g", 40) : WScript.Echo x '> 40
End Sub
Local
