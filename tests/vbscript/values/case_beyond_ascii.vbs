WScript.Echo LCase(ChrW(&HD7)) = ChrW(&HD7) '> True
WScript.Echo UCase(ChrW(&HF7)) = ChrW(&HF7) '> True
WScript.Echo AscW(UCase(ChrW(255))) & " " & AscW(LCase(ChrW(376))) '> 376 255
WScript.Echo AscW(LCase(ChrW(&H130))) & " " & AscW(UCase(ChrW(&H131))) '> 304 305
WScript.Echo UCase("straße ñandú") '> STRAßE ÑANDÚ
WScript.Echo UCase("iI") & LCase("iI") '> IIii
WScript.Echo UCase(ChrW(&H3AC)) = ChrW(&H386) '> True
WScript.Echo InStr(1, "ÑANDÚ", "ú", vbTextCompare) & StrComp("ÿ", ChrW(376), vbTextCompare) '> 50
