WScript.Echo CSng(0.1), CSng(1 / 3) '> 0,1 0,3333333
WScript.Echo CSng("1,5"), TypeName(CSng(1)) '> 1,5 Single
