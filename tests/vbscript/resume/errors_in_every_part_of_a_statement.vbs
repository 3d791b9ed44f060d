' After an error in any part of a statement nothing of it has happened but the calls that came before.
Dim log, a, d, x, o, i
Function Says(text)
  log = log & text
  Says = Len(text)
End Function
Sub Takes(one, two)
  log = log & "taken"
End Sub
Class Box
  Public held
  Public Property Let Item(i, v)
    log = log & "let"
  End Property
  Public Function Two(one, two)
    log = log & "two"
  End Function
End Class
Sub Shows
  WScript.Echo log & "|" & Err.Number
  log = ""
  Err.Clear
End Sub
Set o = New Box
Set d = CreateObject("Scripting.Dictionary")
a = Array(1, 2)
On Error Resume Next
x = "old"
x = Says("a") + 1 / 0 + Says("b") : Shows '> a|11
x = 1 / 0 + Says("b") : Shows '> |11
WScript.Echo x '> old
Takes Says("a"), 1 / 0 : Shows '> a|11
Takes 1 / 0, Says("a") : Shows '> |11
a(Says("a")) = 1 / 0 : Shows '> a|11
a(1 / 0) = Says("a") : Shows '> |11
a(Says("abc")) = Says("d") : Shows '> abcd|9
WScript.Echo a(0), a(1) '> 1 2
x = a(Says("abc")) + Says("d") : Shows '> abc|9
d.Add Says("a"), 1 / 0 : Shows '> a|11
d(Says("a")) = CInt("z") : Shows '> a|13
d(CInt("z")) = Says("a") : Shows '> |13
WScript.Echo d.Count '> 0
o.held = 1 / 0 : Shows '> |11
o.Item(Says("a")) = 1 / 0 : Shows '> a|11
o.Item(1 / 0) = Says("a") : Shows '> |11
x = o.Two(Says("a"), 1 / 0) : Shows '> a|11
x = o.None(Says("a")) : Shows '> a|438
Set x = Says("a") : Shows '> a|424
Set x = 1 / 0 : Shows '> |11
WScript.Echo IsEmpty(o.held), x '> True old
x = Array(Says("a"), 1 / 0, Says("b")) : Shows '> a|11
x = Mid(Says("a"), 0) : Shows '> a|5
x = Says("a") & Null + CInt("z") & Says("b") : Shows '> a|13
ReDim b(Says("ab"), 1 / 0) : Shows '> ab|11
If Says("a") = 1 / 0 Then log = log & "in" : Shows '> ain|11
For i = Says("a") To 1 / 0 Step Says("b") : log = log & "body" : Next : Shows '> abody|92
Select Case Says("a") : Case 1 / 0, Says("b") : log = log & "first" : Case Else : log = log & "else" : End Select : Shows '> afirst|11
With CInt("z") : log = log & "in" : End With : Shows '> in|13
Erase a(Says("a"))(0) : Shows '> a|13
Execute "x = Says(""a"") / 0 + Says(""b"")" : Shows '> a|11
x = Eval("Says(""a"") + 1 / 0") : Shows '> a|11
WScript.Echo x '> old
