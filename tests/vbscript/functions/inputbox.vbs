' Called without its text it fails before anybody is asked.
On Error Resume Next
x = InputBox()
WScript.Echo Err.Number '> 450
