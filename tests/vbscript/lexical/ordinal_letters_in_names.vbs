nº = 5
ª = 6
n_º2 = 7
WScript.Echo nº, ª, n_º2 '> 5 6 7
