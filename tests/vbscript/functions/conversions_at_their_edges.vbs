' What the conversion functions take, where they round and where they end.
On Error Resume Next
WScript.Echo CBool("#TRUE#"), CBool("true"), CBool("1"), CBool("0,0"), CBool("FALSE"), CBool("#false#") '> True True True False False False
WScript.Echo CBool("yes"): WScript.Echo Err.Number: Err.Clear '> 13
WScript.Echo CBool(""): WScript.Echo Err.Number: Err.Clear '> 13
WScript.Echo CLng("True"): WScript.Echo Err.Number: Err.Clear '> 13
WScript.Echo CInt("#FALSE#"): WScript.Echo Err.Number: Err.Clear '> 13
WScript.Echo CDate("True"): WScript.Echo Err.Number: Err.Clear '> 13
WScript.Echo IsNumeric("True"), IsNumeric("#TRUE#"), IsNumeric(True), IsNumeric(""), IsNumeric(" 5 "), IsNumeric("5 5"), IsNumeric(#1/1/2020#)
'> False False True False True False False
WScript.Echo IsNumeric("1/1/2020"), IsNumeric(Null), IsNumeric(Empty), IsNumeric("&HFF"), IsNumeric("1e5"), IsNumeric("$5"), IsNumeric("5 €")
'> False False True True True False True
WScript.Echo IsNumeric("-"), IsNumeric("."), IsNumeric(","), IsNumeric("1.000,5"), IsNumeric("(5)") '> False False False True True
WScript.Echo CInt(2.5), CInt(3.5), CInt(-2.5), CLng("2,5"), CByte(0.5), CInt("32767,4"), CByte("255"), CInt(-32768.5), CByte(255.4) '> 2 4 -2 2 0 32767 255 -32768 255
WScript.Echo CInt(32767.5): WScript.Echo Err.Number: Err.Clear '> 6
WScript.Echo CInt(-32769): WScript.Echo Err.Number: Err.Clear '> 6
WScript.Echo CByte(255.5): WScript.Echo Err.Number: Err.Clear '> 6
WScript.Echo CByte(-0.6): WScript.Echo Err.Number: Err.Clear '> 6
WScript.Echo CLng(2147483647.4), CLng(-2147483648.5) '> 2147483647 -2147483648
WScript.Echo CLng(2147483647.5): WScript.Echo Err.Number: Err.Clear '> 6
WScript.Echo CSng(1E39): WScript.Echo Err.Number: Err.Clear '> 6
WScript.Echo CCur(922337203685477.58): WScript.Echo Err.Number: Err.Clear '> 6
WScript.Echo CDate(0.5), CDate(-1.5), CDate(2958465.99999), CDate("12:30") '> 12:00:00 29/12/1899 12:00:00 31/12/9999 23:59:59 12:30:00
WScript.Echo CDate(2958466): WScript.Echo Err.Number: Err.Clear '> 6
WScript.Echo CDate(-657435): WScript.Echo Err.Number: Err.Clear '> 6
WScript.Echo CStr(True), CStr(#1/1/2020#), CStr(1e20), CStr(0.1+0.2), CStr(1/3), CStr(CSng(1/3)), CStr(123456789012345678), CStr(CCur(1.5))
'> True 01/01/2020 1E+20 0,3 0,333333333333333 0,3333333 1,23456789012346E+17 1,5
WScript.Echo Hex(255), Hex(-1), Hex(65535), Hex(65536), Hex(-32769), Hex(2147483647), Hex(CByte(10)), Oct(8), Oct(-1), Hex(2.5), Hex(3.5), Hex("10"), Hex(True), Hex(Empty)
'> FF FFFF FFFF 10000 FFFF7FFF 7FFFFFFF A 10 177777 2 4 A FFFF 0
CLng "9": WScript.Echo Err.Number: Err.Clear '> 458
CInt("x"): WScript.Echo Err.Number: Err.Clear '> 13
CDate "1/1/2020": WScript.Echo Err.Number: Err.Clear '> 458
CByte 300: WScript.Echo Err.Number: Err.Clear '> 6
CCur 1: WScript.Echo Err.Number: Err.Clear '> 458
CSng Null: WScript.Echo Err.Number: Err.Clear '> 94
