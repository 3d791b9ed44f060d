' It may give up, but not hang.
On Error Resume Next
Set r = New RegExp
r.Pattern = "^(a+)+$"
x = r.Test(String(40, "a") & "b")
WScript.Echo "fin" '> fin
