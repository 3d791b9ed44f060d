' In a procedure as among the globals: an array with bounds is not declared again, and keeps what it holds.
Sub P
  Dim a(3), plain
  a(0) = 3
  plain = 4
  On Error Resume Next
  Execute "Dim a(2)"
  WScript.Echo Err.Number, UBound(a), a(0) : Err.Clear '> 13 3 3
  Execute "Dim a(3)"
  WScript.Echo Err.Number, a(0) : Err.Clear '> 13 3
  Execute "Dim a()"
  WScript.Echo Err.Number, a(0) : Err.Clear '> 13 3
  Execute "Dim a"
  WScript.Echo Err.Number, a(0) '> 0 3
  Execute "Dim made(1) : made(0) = 5"
  Execute "Dim made(1)"
  WScript.Echo Err.Number, made(0) : Err.Clear '> 13 5
  Execute "Dim plain(1)"
  WScript.Echo Err.Number, UBound(plain) '> 0 1
End Sub
P
