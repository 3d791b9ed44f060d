Dim nada
WScript.Echo TypeName(nada), TypeName(Null), TypeName(Nothing) '> Empty Null Nothing
WScript.Echo TypeName(1), TypeName(100000), TypeName(1.5), TypeName("x"), TypeName(True) '> Integer Long Double String Boolean
WScript.Echo TypeName(CByte(1)), TypeName(CSng(1)), TypeName(CCur(1)), TypeName(#1/1/2020#) '> Byte Single Currency Date
WScript.Echo TypeName(Array()) '> Variant()
