' Without default members too: what stands left is read before the calls that stand right of it change it.
Dim g, s, m(3, 3), list, turns
Function Sets(v)
  g = v
  Sets = v
End Function
g = 1 : WScript.Echo g - Sets(5) '> -4
g = 1 : WScript.Echo g * 2 + Sets(5) * g '> 27
g = 1 : WScript.Echo g & Sets(5) & g '> 155
g = 1 : WScript.Echo g & g & Sets(5) '> 115
g = 1 : WScript.Echo (g) + (Sets(5)) '> 6
g = 2 : WScript.Echo g ^ Sets(3), g Mod Sets(2), g '> 8 1 2
g = 1 : WScript.Echo -g & -Sets(5) & -g '> -1-5-5
g = 0 : WScript.Echo Not g, g Or Sets(8), g '> -1 8 8

' A text that grows by what a call gives.
s = "a" : s = s & "-" & Renews("b") : WScript.Echo s '> a-b
s = "a" : s = s & Renews("b") & "-" : WScript.Echo s '> ab-
s = "a" : s = s & "-" & "+" & Renews("b") & s : WScript.Echo s '> a-+bnew
s = "a" : s = s & Renews("b") : WScript.Echo s '> ab
s = "a" : s = s & s & Renews("b") : WScript.Echo s '> aab
s = "a" : s = s & "-" & (Renews("b")) : WScript.Echo s '> a-b
Function Renews(t)
  s = "new"
  Renews = t
End Function

' A local variable changes only by calls that it is given to.
Sub Local
  Dim t
  t = "x" : t = t & Fills(t) & "." : WScript.Echo t '> xy.
  t = "x" : t = t & Fills((t)) & "." : WScript.Echo t '> xy.
  t = "x" : t = t & "." & Fills(t) & t : WScript.Echo t '> x.yfilled
  t = 3 : WScript.Echo t + Doubles(t) * t '> 39
  t = 3 : WScript.Echo t < Doubles(t), t '> True 6
End Sub
Function Fills(u)
  u = "filled"
  Fills = "y"
End Function
Function Doubles(u)
  u = u * 2
  Doubles = u
End Function
Local

' In conditions.
g = 9 : If g > Sets(5) Then WScript.Echo "greater" '> greater
g = 9 : turns = 0
Do Until g = Sets(5)
  turns = turns + 1
Loop
WScript.Echo turns '> 1
g = 9 : turns = 0
While g <> Sets(5) : turns = turns + 1 : Wend
WScript.Echo turns '> 1
g = 9 : turns = 0
Do : turns = turns + 1 : Loop While g >= Sets(turns + 7)
WScript.Echo turns '> 2
g = 1
Select Case g
  Case Sets(5) : WScript.Echo "changed"
  Case 1 : WScript.Echo "as it was", g '> as it was 5
End Select

' Indexes.
g = 1 : m(g, Sets(2)) = "a"
g = 1 : m(0, g) = Sets(3)
g = 1 : m(g, 0) = Sets(2)
WScript.Echo m(1, 2), m(0, 1), m(1, 0) & "|" & m(0, 3) & m(2, 0) '> a 3 2||
m(1, 3) = "b"
g = 1 : WScript.Echo m(g, Sets(3)) '> b
list = Array("p", "q", "r")
g = 0 : WScript.Echo list(g) & list(Sets(2)) & list(g) '> prr
g = 1 : WScript.Echo Mid("abcdef", g, Sets(3)), Join(Array(g, Sets(4), g)) '> abc 3 4 4
