a = CByte(200) : b = CByte(55)
WScript.Echo TypeName(a + b), a + b, TypeName(a + CByte(56)), a + CByte(56) '> Byte 255 Integer 256
WScript.Echo TypeName(b - b), TypeName(b - a), b - a '> Byte Integer -145
WScript.Echo TypeName(CByte(15) * CByte(17)), TypeName(CByte(16) * CByte(16)), CByte(16) * CByte(16) '> Byte Integer 256
WScript.Echo TypeName(-b), -b, TypeName(Not b), Not b '> Integer -55 Byte 200
i = 32767 : j = CInt(-32768)
WScript.Echo TypeName(i + 1), TypeName(i - 1), TypeName(j - 1), j - 1, TypeName(i * 2), TypeName(-j), -j '> Long Integer Long -32769 Long Long 32768
m = 2147483647 : n = -2147483647 - 1
WScript.Echo TypeName(m + 1), m + 1, TypeName(n), n, TypeName(n - 1), n - 1, TypeName(-n), -n '> Double 2147483648 Long -2147483648 Double -2147483649 Double 2147483648
WScript.Echo TypeName(m * 2), TypeName(m - 1), TypeName(True + True), True + True, TypeName(-True), -True '> Double Long Integer -2 Integer 1
WScript.Echo TypeName(j \ -1), j \ -1, TypeName(j Mod -1), j Mod -1 '> Long 32768 Integer 0
WScript.Echo TypeName(n Mod -1), n Mod -1, TypeName(True \ True), True \ True '> Long 0 Integer 1
WScript.Echo TypeName(CSng(1) + 1), TypeName(CSng(1) + CLng(1)), TypeName(CSng(1) + True), TypeName(CSng(1) + 1.5) '> Single Double Single Double
WScript.Echo TypeName(CCur(1) + 1.5), TypeName(CCur(1) * 1.5), TypeName(CCur(1) * 2), TypeName(CCur(1) / 2) '> Currency Double Currency Double
WScript.Echo TypeName(CSng(3) / CSng(2)), TypeName(3 / 2), TypeName(CSng(3) / 2), TypeName(CSng(3) / CLng(2)) '> Single Double Single Double
On Error Resume Next
x = 0 / 0 : WScript.Echo Err.Number : Err.Clear '> 6
x = 1 / 0 : WScript.Echo Err.Number : Err.Clear '> 11
x = 0 \ 0 : WScript.Echo Err.Number : Err.Clear '> 11
x = n \ -1 : WScript.Echo Err.Number : Err.Clear '> 6
x = 0 ^ -1 : WScript.Echo Err.Number : Err.Clear '> 5
x = (-8) ^ (1 / 3) : WScript.Echo Err.Number : Err.Clear '> 5
x = 1E200 * 1E200 : WScript.Echo Err.Number : Err.Clear '> 6
x = 10 ^ 400 : WScript.Echo Err.Number : Err.Clear '> 6
x = CCur(900000000000000) + CCur(900000000000000) : WScript.Echo Err.Number : Err.Clear '> 6
x = CCur(-900000000000000) - CCur(900000000000000) : WScript.Echo Err.Number : Err.Clear '> 6
x = CCur(900000000) * CCur(900000000) : WScript.Echo Err.Number : Err.Clear '> 6
x = DateSerial(9999, 12, 31) + 1 : WScript.Echo Err.Number : Err.Clear '> 6
x = DateSerial(100, 1, 1) - 1 : WScript.Echo Err.Number : Err.Clear '> 6
x = 2147483647.5 \ 1 : WScript.Echo Err.Number : Err.Clear '> 6
x = 3 Mod 0.4 : WScript.Echo Err.Number : Err.Clear '> 11
WScript.Echo 0 ^ 0, (-2) ^ 3, (-8) ^ -1, 2.5 \ 1, 3.5 \ 1, -7 \ 2, -7 Mod 3, 7 Mod -3 '> 1 -8 -0,125 2 4 -3 -1 1
WScript.Echo TypeName(DateSerial(9999, 12, 31) - DateSerial(100, 1, 1)), TypeName(#1/1/2020# + 1), TypeName(1 + #1/1/2020#), TypeName(#1/1/2020# - 1) '> Double Date Date Date
