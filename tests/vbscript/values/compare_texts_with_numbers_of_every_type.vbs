' Beside a number that is no literal both are compared as texts, and nothing fails.
t = "10" : n = 10
WScript.Echo t = n, t > n, n < t '> True False False
t = "007" : n = 7
WScript.Echo t = n, n = t, t < n, t <> n '> False False True True
t = "abc"
WScript.Echo t = n, t > n, n > t '> False True False
t = ""
WScript.Echo t > n, n > t, t = n '> False True False
t = "10" : n = 9
WScript.Echo t < n, t > n '> True False
t = "1,5" : n = 1.5
WScript.Echo t = n, t = CSng(n), t = CCur(n) '> True True True
t = "01/02/2020" : n = DateSerial(2020, 2, 1)
WScript.Echo t = n, n = t, "1/2/2020" = n '> True True False
t = "5" : n = CByte(5)
WScript.Echo t = n, n = t '> True True
