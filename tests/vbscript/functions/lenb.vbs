WScript.Echo LenB("abc"), LenB("€"), LenB("") '> 6 2 0
