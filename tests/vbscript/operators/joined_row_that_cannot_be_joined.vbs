' What cannot become a text fails before the rest of the row is called.
Dim list, r, called
list = Array(1)
Function F
  called = called & "f"
  F = "f"
End Function
On Error Resume Next
r = "a" & list & F
WScript.Echo Err.Number, "[" & called & "]" '> 13 []
Err.Clear
r = list & "a" & F & F
WScript.Echo Err.Number, "[" & called & "]" '> 13 []
Err.Clear
r = "a" & F & list & F
WScript.Echo Err.Number, "[" & called & "]" '> 13 [f]
Err.Clear
called = ""
r = "a" & Null & F & Null & Empty & 2
WScript.Echo Err.Number, r, called '> 0 af2 f
r = Null & Null & Null
WScript.Echo IsNull(r) '> True
