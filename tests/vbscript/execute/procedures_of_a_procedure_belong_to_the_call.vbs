' What Execute declares inside a procedure is known to that call alone; ExecuteGlobal declares for everybody.
Sub P
  Execute "Sub Doble(v) : v = v * 2 : End Sub"
  Dim n : n = 4
  Doble n
  WScript.Echo n '> 8
  Execute "Doble n : WScript.Echo n" '> 16
  Execute "Function Fac(k) : If k < 2 Then Fac = 1 Else Fac = k * Fac(k - 1)" & vbLf & "End Function"
  WScript.Echo Fac(5), Eval("Fac(4) + 1") '> 120 25
  Execute "Sub Uno : Dos 3 : End Sub : Sub Dos(k) : WScript.Echo ""dos"" & k : End Sub"
  Uno '> dos3
  Set r = GetRef("Fac")
  WScript.Echo r(3) '> 6
  Set kept = r
  Execute "Function Fac(k) : Fac = -k : End Function"
  WScript.Echo Fac(5), r(3) '> -5 6
End Sub
Dim kept
P
WScript.Echo kept(4) '> 24
Sub Q
  On Error Resume Next
  Doble 1
  WScript.Echo Err.Number '> 13
  Err.Clear
  Set x = GetRef("Fac")
  WScript.Echo Err.Number '> 5
  Err.Clear
  x = Eval("Fac(3)")
  WScript.Echo Err.Number '> 13
End Sub
Q
On Error Resume Next
Doble 1
WScript.Echo Err.Number '> 13
Err.Clear
On Error GoTo 0

Sub Anida(times)
  If times > 0 Then Execute "Function Vez : Vez = " & times & " : End Function"
  If times > 0 Then Anida times - 1 : WScript.Echo Vez
End Sub
Anida 2
'> 1
'> 2

Class K
  Sub M
    Execute "Function Local : Local = ""de M"" : End Function"
    WScript.Echo Local
  End Sub
  Sub N
    On Error Resume Next
    x = Local(1)
    WScript.Echo Err.Number
  End Sub
End Class
Set o = New K
o.M '> de M
o.N '> 13

Sub G
  ExecuteGlobal "Function DeTodos : DeTodos = 1 : End Function"
  WScript.Echo DeTodos
End Sub
G '> 1
WScript.Echo DeTodos '> 1

Sub Nested
  Execute "Execute ""Function Hondo : Hondo = 7 : End Function : Dim z : z = 5"" : WScript.Echo Hondo, z" '> 7 5
  WScript.Echo Hondo(), z '> 7 5
End Sub
Nested
