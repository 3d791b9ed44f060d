WScript.Echo Int(CCur(-2.5)), Fix(CCur(-2.5)), TypeName(Int(CCur(2.5))) '> -3 -2 Currency
WScript.Echo Int(True), TypeName(Int(True)), TypeName(Int(CByte(3))) '> -1 Integer Byte
WScript.Echo Int(-0.5), TypeName(Fix(CSng(2.5))) '> -1 Single
