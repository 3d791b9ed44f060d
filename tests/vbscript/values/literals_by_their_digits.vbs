' The value of a whole number tells its type, not the digits that it is written with.
Sub Says(value)
  WScript.Echo TypeName(value) & " " & value
End Sub
Says 0000000001 '> Integer 1
Says 00000032767 '> Integer 32767
Says 00000032768 '> Long 32768
Says 999999999 '> Long 999999999
Says 1000000000 '> Long 1000000000
Says 02147483647 '> Long 2147483647
Says 2147483648 '> Double 2147483648
Says 99999999999 '> Double 99999999999
Says 000000000000000000000 '> Integer 0
Says 1. '> Double 1
Says 12.e1 '> Double 120
Says .5e1 '> Double 5
Says 1E+3 '> Double 1000
Says 1e-400 '> Double 0
Says &H00000000001 '> Integer 1
Says &H7FFF '> Integer 32767
Says &H7FFFFFFF '> Long 2147483647
Says &H80000000 '> Long -2147483648
Says &HFFFFFFFF '> Long -1
Says &H10000 '> Long 65536
Says &H8000& '> Long 32768
Says &HFFFF8000& '> Integer -32768
Says &HFFFF7FFF& '> Long -32769
Says &h7fff& '> Integer 32767
Says &O177777 '> Integer -1
Says &O77777 '> Integer 32767
Says &O200000 '> Long 65536
Says &O37777777777 '> Long -1
x = &37777777777 : Says x '> Long -1
Says &o17 '> Integer 15
x = &17& : Says x '> Integer 15

Function Number(text)
  On Error Resume Next
  Execute "x = " & text
  Number = Err.Number
End Function
WScript.Echo Number("&H100000000"), Number("&HFFFFFFFFFFFFFFFF"), Number("&O40000000000"), Number("&O777777777777"), Number("&H0FFFFFFFF") '> 1031 1031 1031 1031 0
WScript.Echo Number("1e308"), Number("1e309"), Number("1" & String(308, "0")), Number("1" & String(309, "0")) '> 0 1031 0 1031
WScript.Echo Number("1e"), Number("1e+"), Number("5.5.5"), Number("1x"), Number("&O8"), Number("&18"), Number("&HG") '> 1025 1025 1025 1025 1002 1002 1002
