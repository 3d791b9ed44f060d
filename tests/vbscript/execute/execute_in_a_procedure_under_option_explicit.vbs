Option Explicit
Sub P
  Execute "Dim gap : gap = 6"
  WScript.Echo gap '> 6
  gap = gap + 1
  WScript.Echo gap, Eval("gap") '> 7 7
  Execute "Dim tabla(2) : tabla(1) = 5"
  tabla(0) = 4
  WScript.Echo tabla(0) + tabla(1), UBound(tabla) '> 9 2
  Execute "Dim i : Dim v"
  Dim s
  For i = 1 To 3
    s = s & i
  Next
  For Each v In tabla
    s = s & v
  Next
  WScript.Echo s, i '> 12345 4
  Execute "Dim d : Set d = CreateObject(""Scripting.Dictionary"")"
  d.Add "a", 1
  Set d = d
  WScript.Echo d("a"), d.Count '> 1 1
  Execute "Function Doble(x) : Doble = x * 2 : End Function"
  WScript.Echo Doble(4) '> 8
End Sub
P
On Error Resume Next
WScript.Echo Eval("TypeName(i)") '> Empty
Err.Clear
Sub Q
  Execute "Dim otra"
  gap = 5
End Sub
Q
WScript.Echo Err.Number : Err.Clear '> 500
Sub R
  Execute "Dim otra"
  otra = gap
End Sub
R
WScript.Echo Err.Number : Err.Clear '> 500
Sub T
  Execute "Dim otra"
  gap
End Sub
T
WScript.Echo Err.Number : Err.Clear '> 500
