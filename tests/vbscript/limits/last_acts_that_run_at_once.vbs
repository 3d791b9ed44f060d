' Class_Terminate runs before the next thing that the script does, inside one statement too.
Class Cosa
  Public n, parte
  Public Function texto(s)
    texto = "<" & n & s & ">"
  End Function
  Private Sub Class_Terminate
    WScript.Echo "-", n
    If n = 7 Then Set parte = Nothing
  End Sub
End Class
Function con(n)
  Set con = New Cosa
  con.n = n
End Function
Function dice(s)
  WScript.Echo "dice", s
  dice = s
End Function
Dim o, p
Set o = con(1) : Set o = Nothing : WScript.Echo "despues"
'> - 1
'> despues
WScript.Echo con(2).texto(dice("a")) & con(3).texto(dice("b"))
'> dice a
'> - 2
'> dice b
'> - 3
'> <2a><3b>
Set o = con(4)
Set o = con(5)
'> - 4
o = dice("c")
'> dice c
'> - 5
If con(6) Is Nothing Then WScript.Echo "no" Else WScript.Echo "si"
'> - 6
'> si
Set o = con(7)
Set o.parte = con(8)
Set o.parte.parte = con(9)
Set o = Nothing
'> - 7
'> - 8
'> - 9
o = Array(con(10), Array(con(11), con(12)), con(13))
o = 0
'> - 10
'> - 11
'> - 12
'> - 13
Set o = con(14)
Set p = o
Set o = Nothing
WScript.Echo "vive"
Set p = Nothing
'> vive
'> - 14
