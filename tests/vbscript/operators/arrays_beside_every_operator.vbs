' An array is no operand, and Null does not win over that; a Single decides how exactly it is compared.
Sub T(s)
  On Error Resume Next
  Dim v
  v = Eval(s)
  If Err.Number <> 0 Then
    v = "error " & Err.Number
  ElseIf IsNull(v) Then
    v = "Null"
  Else
    v = TypeName(v) & " " & v
  End If
  WScript.Echo s, "=", v
End Sub
Dim arr
arr = Array(1)
T "arr = Null" '> arr = Null = error 13
T "arr < 1" '> arr < 1 = error 13
T "1 >= arr" '> 1 >= arr = error 13
T "arr <> arr" '> arr <> arr = error 13
T "arr & 1" '> arr & 1 = error 13
T "arr + 1" '> arr + 1 = error 13
T "-arr" '> -arr = error 13
T "Not arr" '> Not arr = error 13
T "arr And 1" '> arr And 1 = error 13
T "arr Is Nothing" '> arr Is Nothing = error 424
T "CSng(0.7) = 0.7" '> CSng(0.7) = 0.7 = Boolean True
T "CSng(0.7) < 0.7" '> CSng(0.7) < 0.7 = Boolean False
T "0.7 >= CSng(0.7)" '> 0.7 >= CSng(0.7) = Boolean True
T "CSng(0.7) <> 0.7" '> CSng(0.7) <> 0.7 = Boolean False
T "0.7 > CSng(0.7)" '> 0.7 > CSng(0.7) = Boolean False
