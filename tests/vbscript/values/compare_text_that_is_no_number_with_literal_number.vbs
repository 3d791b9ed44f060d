On Error Resume Next
t = "7a"
x = (t = 7) : WScript.Echo Err.Number : Err.Clear '> 13
x = (7 <> t) : WScript.Echo Err.Number : Err.Clear '> 13
x = ("" < 7) : WScript.Echo Err.Number : Err.Clear '> 13
x = (t >= 7.5) : WScript.Echo Err.Number : Err.Clear '> 13
x = Eval("t = 7") : WScript.Echo Err.Number : Err.Clear '> 13
Select Case t
  Case 7
    WScript.Echo "sin número", Err.Number '> sin número 13
End Select
If t = 7 Then WScript.Echo "entra" '> entra
