' An octal code has up to three digits and stays below 256; what is left over stands for itself.
Set re = New RegExp
Function Matches(pattern, text)
    re.Pattern = "^" & pattern & "$"
    Matches = re.Test(text)
End Function
WScript.Echo Matches("\101", "A"), Matches("\60", "0"), Matches("\377", ChrW(255)), Matches("\077", "?"), Matches("\1011", "A1") '> True True True True True
WScript.Echo Matches("\400", " 0"), Matches("\407", " 7"), Matches("\401", ChrW(257)), Matches("\777", "?7"), Matches("\376", ChrW(254)) '> True True False True True
WScript.Echo Matches("\0", ChrW(0)), Matches("\00", ChrW(0)), Matches("\000", ChrW(0)), Matches("\0101", ChrW(8) & "1"), Matches("\08", ChrW(0) & "8") '> True True True True True
WScript.Echo Matches("[\101-\103]+", "ABC"), Matches("[\400]+", " 0 0"), Matches("\x41\u0042", "AB"), Matches("\x4", "x4"), Matches("\u004", "u004") '> True True True True True
