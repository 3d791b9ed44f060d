' &H800A000D is the full form of error 13.
On Error Resume Next
Err.Raise &H800A000D
WScript.Echo Err.Number '> 13
