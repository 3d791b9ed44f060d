WScript.Echo ChrW(8364), ChrW(&H3A9) '> € Ω
WScript.Echo AscW(ChrW(1234)) '> 1234
