WScript.Echo LenB(ChrB(65)) '> 1
WScript.Echo AscB(ChrB(200)) '> 200
WScript.Echo ChrB(65) & ChrB(0) = "A" '> True
