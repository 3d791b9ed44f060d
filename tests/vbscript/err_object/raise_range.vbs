On Error Resume Next
For Each n In Array(0, 1, 65000, 65535, 65536, 70000, -70, -1, 2147483647, -2147483648.0, 2147483648.0, -2147483649.0, 0.4, 1.5, "77")
  Err.Clear
  Err.Raise n
  WScript.Echo n, Err.Number
Next
'> 0 5
'> 1 1
'> 65000 65000
'> 65535 65535
'> 65536 5
'> 70000 5
'> -70 -70
'> -1 -1
'> 2147483647 5
'> -2147483648 -2147483648
'> 2147483648 6
'> -2147483649 6
'> 0,4 5
'> 1,5 2
'> 77 77
Err.Clear : Err.Raise : WScript.Echo Err.Number '> 450
Err.Clear : Err.Raise "siete" : WScript.Echo Err.Number '> 13
Err.Clear : Err.Raise Null : WScript.Echo Err.Number '> 94
Err.Clear : Err.Raise vbObjectError : WScript.Echo Err.Number '> -2147221504
Err.Clear : Err.Raise vbObjectError + 20 : WScript.Echo Err.Number '> -2147221484
