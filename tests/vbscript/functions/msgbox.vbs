' Called without its text it fails before anything is shown.
On Error Resume Next
MsgBox
WScript.Echo Err.Number '> 450
