' Number is the default property of Err, and it can be assigned.
On Error Resume Next
Err = 5
WScript.Echo Err.Number, Err '> 5 5
Err = 0
WScript.Echo Err.Number '> 0
Err = "11"
WScript.Echo Err.Number '> 11
Sub InAProcedure
    Err = 13
End Sub
InAProcedure
WScript.Echo Err.Number '> 13
Execute "Err = 7"
WScript.Echo Err.Number '> 7
ExecuteGlobal "Err = 9"
WScript.Echo Err.Number '> 9
Sub BesideExecute
    Execute "Dim x"
    Err = 6
End Sub
BesideExecute
WScript.Echo Err.Number '> 6
Err = "nine"
WScript.Echo Err.Number '> 13
' It is no variable all the same.
Err.Clear
Set Err = Nothing
WScript.Echo Err.Number '> 501
Err.Clear
Sub WithItsOwn
    Dim Err
    Err = 4
    WScript.Echo Err '> 4
End Sub
WithItsOwn
WScript.Echo Err.Number '> 0
