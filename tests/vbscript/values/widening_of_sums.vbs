WScript.Echo TypeName(1 + 1), TypeName(1 + 100000), TypeName(1 + 1.5) '> Integer Long Double
WScript.Echo TypeName(CSng(1) + 1), TypeName(CSng(1) + 100000), TypeName(CSng(1) + CSng(1)) '> Single Double Single
WScript.Echo TypeName(CCur(1) + 1), TypeName(CCur(1) * CCur(2)) '> Currency Currency
