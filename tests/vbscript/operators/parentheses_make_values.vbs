WScript.Echo ((1 + 2)) * (3), (("a")) '> 9 a
