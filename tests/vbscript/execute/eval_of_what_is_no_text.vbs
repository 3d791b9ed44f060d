WScript.Echo TypeName(Eval(Null)), TypeName(Eval(Empty)), Eval(5) + 1 '> Null Empty 6
SetLocale 1033
WScript.Echo Eval(#1/2/2020#), TypeName(Eval(#1/2/2020#)) '> 1/2/2020 Date
WScript.Echo UBound(Eval(Array(1, 2))), Eval(True) '> 1 True
Set r = New RegExp
Set s = Eval(r)
WScript.Echo s Is r '> True
Sub P(x)
  WScript.Echo TypeName(Eval(x)) '> Double
End Sub
P 2.5
