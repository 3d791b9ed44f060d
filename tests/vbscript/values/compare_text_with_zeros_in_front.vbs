' A literal number makes a number of the text beside it.
t = "10"
WScript.Echo t = 10, 10 = t, t > 9, t < 100 '> True True True True
t = "010"
WScript.Echo t = 10, 10 = t, t <> 10, t >= 10 '> True True False True
t = "abc"
WScript.Echo t = 10 '! 13
