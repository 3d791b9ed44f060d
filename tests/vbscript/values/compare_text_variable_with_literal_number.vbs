' A literal number makes a number of the text.
t = "10"
WScript.Echo t = 10, 10 = t, t > 9, t < 100, "007" = 7 '> True True True True True
WScript.Echo t = 10.0, t <> 1E1, t >= &HA '> True False True
t = "abc"
WScript.Echo t = 10 '! 13
