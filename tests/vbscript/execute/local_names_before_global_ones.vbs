' What Execute declares in a procedure comes before the script's variables of the same name, for the procedure's own
' text too, wherever a variable may stand; the others stay those of the script.
Dim x, i, v, arr(), o, e
x = 1 : i = 10 : v = 20
Sub Inc(n) : n = n + 1 : End Sub
Class C : Public n : End Class
Sub P
  Execute "Dim x, i, v, arr(1), o : x = 5"
  Inc x
  WScript.Echo x
  For i = 1 To 2 : Next
  For Each v In Array(7, 8) : Next
  Execute "WScript.Echo i, v, x"
  arr(1) = 4
  Inc arr(1)
  WScript.Echo arr(1)
  Set o = New C
  With o
    .n = 3
    Inc .n
  End With
  WScript.Echo o.n, TypeName(o)
  Erase arr
  WScript.Echo TypeName(arr(1))
  x = x & "t"
  x = x & "u"
  WScript.Echo x, Len(x), IsEmpty(x), x = "6tu"
  If x = "6tu" Then WScript.Echo "eq"
  Select Case x : Case "6tu" : WScript.Echo "case" : End Select
  e = 9
  Execute "e = e + 1"
  WScript.Echo e
End Sub
P
'> 6
'> 3 8 6
'> 5
'> 3 C
'> Empty
'> 6tu 3 False True
'> eq
'> case
'> 10
WScript.Echo x, i, v, TypeName(o), e '> 1 10 20 Empty 10
Sub Q
  Execute "y = 1"
  Inc x
  For i = 1 To 3
    x = x + i
  Next
  ReDim arr(3)
  arr(2) = x
  WScript.Echo x, UBound(arr), arr(2), y
End Sub
Q '> 8 3 8 1
WScript.Echo x, i, UBound(arr), arr(2), y '> 8 4 3 8 1
Sub D
  Execute "ReDim arr(5)"
  ReDim Preserve arr(7)
  WScript.Echo UBound(arr)
End Sub
D '> 7
WScript.Echo UBound(arr) '> 7
Function G
  G = Eval("x + 1")
  x = G
End Function
WScript.Echo G, x '> 9 9
Sub T(p)
  Execute "Dim x : x = p"
  p = x + 1
  Inc p
  WScript.Echo x, p
End Sub
z = 4
T z '> 4 6
WScript.Echo z '> 6
