' Without parentheses the function's name is its result variable.
Function F()
  If n < 3 Then
    n = n + 1
    F()
  End If
  F = n
End Function
n = 0
WScript.Echo F() '> 3
