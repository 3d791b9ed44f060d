a = CCur(1.1) : b = CCur(2.2)
WScript.Echo a + b, a + b = CCur(3.3), a * 3, TypeName(a / 2) '> 3,3 True 3,3 Double
