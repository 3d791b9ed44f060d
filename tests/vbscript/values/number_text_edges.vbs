WScript.Echo IsNumeric("1,5.000") '> False
WScript.Echo IsNumeric("(5)-") & " " & CDbl("(5)") & " " & CDbl("5-") '> False -5 -5
WScript.Echo CDbl("1D3") & " " & CDbl("1,5e+2") '> 1000 150
WScript.Echo CDbl("1.500,25") & " " & 1 / 15 & " " & 1 / 3 '> 1500,25 6,66666666666667E-02 0,333333333333333
WScript.Echo CInt("32767") '> 32767
WScript.Echo CDbl("1e-400") '> 0
WScript.Echo 1.5 * 10 & " " & 0.25 * 100 & " " & CDbl("2,5") * 10 '> 15 25 25
x = CDbl("1e400") '! 6
