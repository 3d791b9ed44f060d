On Error Resume Next
With 5
End With
WScript.Echo Err.Number : Err.Clear '> 424
With "texto" : End With
WScript.Echo Err.Number : Err.Clear '> 424
With True : End With
WScript.Echo Err.Number : Err.Clear '> 424
With nada : End With
WScript.Echo Err.Number : Err.Clear '> 424
With Null : End With
WScript.Echo Err.Number : Err.Clear '> 424
With Array(1) : End With
WScript.Echo Err.Number : Err.Clear '> 424
With 1 + 1
  WScript.Echo "dentro", Err.Number '> dentro 424
  x = .y
  WScript.Echo Err.Number : Err.Clear '> 424
End With
With Nothing : End With
WScript.Echo Err.Number '> 0
On Error GoTo 0
Function F(n) F = n End Function
With F(3) '! 424
End With
