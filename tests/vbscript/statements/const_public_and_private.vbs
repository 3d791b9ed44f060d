Public Const A = 1
Private Const B = 2
WScript.Echo A + B '> 3
