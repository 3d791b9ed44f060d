' Brackets may follow brackets in an expression, whatever stands in the first.
Class Half
  Public Default Function Of_(n)
    Of_ = n / 2
  End Function
End Class
x = (New Half)(8)
WScript.Echo x '> 4
x = (Array(4, 5))(1)
WScript.Echo x '> 5
x = ((Array(4, 5)))(0) + (New Half)(2)
WScript.Echo x '> 5
On Error Resume Next
x = ("abc")(1)
WScript.Echo Err.Number '> 13
Err.Clear
Execute "x = 5(1)"
WScript.Echo Err.Number '> 1025
Err.Clear
Execute "x = ""abc""(1)"
WScript.Echo Err.Number '> 1025
