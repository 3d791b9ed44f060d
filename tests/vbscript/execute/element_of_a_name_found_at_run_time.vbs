' An element of an array that Execute made goes by reference, as one of a declared array does.
Option Explicit
Sub Raise1(x)
  x = x + 1
End Sub
Sub Local
  Execute "Dim list : list = Array(5, Array(6))"
  Raise1 list(0)
  Call Raise1(list(1)(0))
  WScript.Echo list(0), list(1)(0) '> 6 7
End Sub
Local
Execute "Dim fixed(1), deep : fixed(1) = 2 : deep = Array(Array(3))"
Raise1 fixed(1)
Raise1 deep(0)(0)
WScript.Echo fixed(1), deep(0)(0) '> 3 4

Sub Earlier
  Raise1 given(0)
  WScript.Echo given(0)
End Sub
ExecuteGlobal "Dim given : given = Array(8)"
Earlier '> 9

' What turns out to be a function is called, with its own arguments by reference.
Sub Through
  Dim n
  n = 1
  Raise1 Later(n)
  WScript.Echo n
End Sub
ExecuteGlobal "Function Later(x) : x = x + 10 : Later = x : End Function"
Through '> 11
On Error Resume Next
Raise1 nothingThere(0)
WScript.Echo Err.Number '> 500
