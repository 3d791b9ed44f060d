WScript.Echo TypeName(Abs(-2)) '> Integer
WScript.Echo TypeName(Abs(-70000)) '> Long
WScript.Echo TypeName(Abs(-2.5)) '> Double
WScript.Echo TypeName(Abs(CCur(-2.5))) '> Currency
