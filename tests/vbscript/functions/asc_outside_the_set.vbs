' What Windows-1252 does not contain is a question mark; AscW knows it, as a signed number.
WScript.Echo Asc("Ω"), AscW("Ω") '> 63 937
WScript.Echo AscW(ChrW(65535)), AscW(ChrW(-1)) '> -1 -1
