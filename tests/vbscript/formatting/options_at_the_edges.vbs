WScript.Echo FormatNumber(0.2, 0, 0), FormatNumber(0.25, 1, 0), FormatNumber(-0.25, 2, 0), FormatNumber(0.5, 0), FormatNumber(1.5, 0), FormatNumber(2.5, 0) '> 0 ,3 -,25 1 2 3
WScript.Echo FormatNumber(-1, 0, , 1), FormatNumber(-1, 0, , 0), FormatNumber(-1, 0, , -2), FormatNumber(-0.001, 2), FormatNumber(-0.001, 2, , -1) '> (1) -1 -1 0,00 0,00
WScript.Echo FormatNumber(1234567, 0), FormatNumber(1234567, 0, , , 0), FormatNumber(123, 0), FormatNumber(1000, 0), FormatNumber(999.999), FormatNumber(-1234.5) '> 1.234.567 1234567 123 1.000 1.000,00 -1.234,50
WScript.Echo FormatNumber("1234,5"), FormatNumber(True, 0), FormatNumber(Empty), FormatNumber(1E20, 0), FormatNumber(CCur("92233720368,5807"), 4) '> 1.234,50 -1 0,00 100.000.000.000.000.000.000 92.233.720.368,5807
WScript.Echo FormatPercent(0.5), FormatPercent(0.005, 0), FormatPercent(0.001, 0, 0), FormatPercent(-1.25, 0, , -1), FormatPercent(12.5, 0) '> 50,00% 1% 0% (125%) 1.250%
WScript.Echo FormatCurrency(0.5, 0), FormatCurrency(-1.5), FormatCurrency(-1.5, , , -1), FormatCurrency(1234567.891, 1) '> 1 € -1,50 € (1,50 €) 1.234.567,9 €
WScript.Echo FormatNumber(1E-7, 8), FormatNumber(0.1 + 0.2, 16), FormatNumber(CSng(0.1), 9), Len(FormatNumber(1, 255)) '> 0,00000010 0,3000000000000000 0,100000000 257
On Error Resume Next
x = FormatNumber(1, 256) : WScript.Echo Err.Number : Err.Clear '> 5
x = FormatNumber(1, -2) : WScript.Echo Err.Number : Err.Clear '> 5
