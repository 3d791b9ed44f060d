valor_1 = 1
a2b_ = 2
WScript.Echo valor_1 + a2b_ '> 3
