' A literal number pulls a numeric text to its side; any other text ranks above it.
t = "10"
WScript.Echo t = 10, 10 = t, t > 9, t < 100 '> True True True True
t = "abc"
WScript.Echo t = 10, t > 10 '> False True
