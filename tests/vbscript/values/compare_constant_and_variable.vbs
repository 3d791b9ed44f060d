Const TEXTO = "abc"
n = 5
WScript.Echo TEXTO = n, TEXTO > n '> False True
