WScript.Echo Sin(0), Sin(1) '> 0 0,841470984807897
WScript.Echo Round(Sin(Atn(1) * 2), 10) '> 1
