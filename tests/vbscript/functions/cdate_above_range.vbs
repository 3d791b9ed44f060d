' The last day is 31 December 9999, serial 2958465.
WScript.Echo CDate(2958465) '> 31/12/9999
On Error Resume Next
d = CDate(2958466)
WScript.Echo Err.Number <> 0 '> True
