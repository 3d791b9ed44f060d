' A text beside a truth value is compared as text, beside a literal as a number, beside any other number as text.
Sub T(s)
  On Error Resume Next
  Dim v
  v = Eval(s)
  If Err.Number <> 0 Then
    v = "error " & Err.Number
  ElseIf IsNull(v) Then
    v = "Null"
  Else
    v = TypeName(v) & " " & v
  End If
  WScript.Echo s, "=", v
End Sub
Dim n, b
n = 7
b = True
T """tRUE"" = True" '> "tRUE" = True = Boolean False
T """True"" <> b" '> "True" <> b = Boolean False
T """True"" < b" '> "True" < b = Boolean False
T """Z"" > True" '> "Z" > True = Boolean True
T "b >= ""True""" '> b >= "True" = Boolean True
T """a"" <= False" '> "a" <= False = Boolean False
T "False = ""False""" '> False = "False" = Boolean True
T """-1"" = True" '> "-1" = True = Boolean False
T """007"" = 7" '> "007" = 7 = Boolean True
T """007"" <> 7" '> "007" <> 7 = Boolean False
T """7a"" < 7" '> "7a" < 7 = error 13
T """7a"" > n" '> "7a" > n = Boolean True
T """007"" = n" '> "007" = n = Boolean False
T "7 = ""007""" '> 7 = "007" = Boolean True
T """7a"" = -7" '> "7a" = -7 = Boolean False
T """-7"" = -7" '> "-7" = -7 = Boolean True
T """16"" = &H10" '> "16" = &H10 = Boolean True
T """7,0"" = 7" '> "7,0" = 7 = Boolean True
T """7"" = CByte(7)" '> "7" = CByte(7) = Boolean True
T "n = ""007""" '> n = "007" = Boolean False
T """007"" = (7)" '> "007" = (7) = Boolean True
T """7"" = 7.0" '> "7" = 7.0 = Boolean True
