' The names of functions are no keywords: what a script declares under them is meant wherever it can be seen.
Function Eval(text)
  Eval = "mine:" & text
End Function
Function GetRef(name)
  GetRef = "ref:" & name
End Function
Sub ExecuteGlobal(text)
  WScript.Echo "global:" & text
End Sub
Class Timer
  Public Left
  Public Function Mid(a)
    Mid = "mid:" & a & ":" & Right(a, 1)
  End Function
  Private Function Right(a, n)
    Right = "own"
  End Function
  Public Sub Uses
    Left = 5
    WScript.Echo Left, Mid("xyz"), Len("four")
  End Sub
End Class
Const Pi = 3, Sgn = "sign"
Dim Hex(2), Oct
Hex(1) = "element"
WScript.Echo Eval("1 + 1"), GetRef("Eval"), Sgn, Hex(1), TypeName(Oct) '> mine:1 + 1 ref:Eval sign element Empty
ExecuteGlobal "x = 1" '> global:x = 1
Set o = New Timer
o.Uses '> 5 mid:xyz:own 4
WScript.Echo TypeName(o), o.Mid("q"), Mid("abc", 2), Right("abc", 1) '> Timer mid:q:own bc c

Sub Locals(Len)
  Dim Abs, Log(1), Fix
  Const Exp = 8
  Fix = 4
  Log(1) = 2
  Abs = Len + 1
  WScript.Echo Len, Abs, Log(1), Exp, Fix, Int(2.5)
End Sub
Locals 1 '> 1 2 2 8 4 2
WScript.Echo Len("abc"), Abs(-1), Fix(-1.5), Log(1) & Exp(0) '> 3 1 -1 01
Sub Loops
  Dim Asc, Chr
  For Each Asc In Array("a", "b")
    For Chr = 1 To 2 : Next
  Next
  WScript.Echo Asc & Chr
End Sub
Loops '> b3
WScript.Echo Asc("a"), Chr(65) '> 97 A
Execute "Function UCase(t) : UCase = t & ""!"" : End Function"
Execute "WScript.Echo UCase(""low""), LCase(""UP"")" '> low! up
