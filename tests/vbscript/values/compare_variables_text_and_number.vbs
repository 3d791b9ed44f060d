' Between variables every text ranks above every number, even the same one.
t = "10" : n = 10
WScript.Echo t = n, t > n, n < t '> False True True
t = "abc"
WScript.Echo t = n, t > n '> False True
t = ""
WScript.Echo t > n, n > t '> True False
