WScript.Echo TypeName(Round(2.5)), TypeName(Round(CSng(2.5))), TypeName(Round(7)) '> Double Single Integer
WScript.Echo Round(CCur(2.345), 2), Round(CCur(2.355), 2), TypeName(Round(CCur(2.5))) '> 2,34 2,36 Currency
WScript.Echo Round(1E300, 5) = 1E300 '> True
