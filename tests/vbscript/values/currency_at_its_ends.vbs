' What lies beyond the largest and the smallest amount is an error, also where only the sign or the fraction changes.
SetLocale 3082
Dim high, low
high = CCur("922337203685477,5807")
low = CCur("-922337203685477,5808")
Sub T(expression)
    Dim r
    On Error Resume Next
    r = Eval(expression)
    If Err.Number <> 0 Then r = "error " & Err.Number
    WScript.Echo r
End Sub
T "high + CCur(""0,0001"")" '> error 6
T "low - CCur(""0,0001"")" '> error 6
T "-low" '> error 6
T "-high" '> -922337203685477,5807
T "Abs(low)" '> error 6
T "Abs(-high)" '> 922337203685477,5807
T "Int(low)" '> error 6
T "Int(-high)" '> error 6
T "Fix(low)" '> -922337203685477
T "Round(high)" '> error 6
T "Round(low)" '> error 6
T "Round(high, 1)" '> error 6
T "Round(high, 3)" '> error 6
T "Round(low, 4)" '> -922337203685477,5808
T "high * 1" '> 922337203685477,5807
T "high * 2" '> error 6
T "low * CCur(-1)" '> error 6
