WScript.Echo CSng(0.1) = 0.1, CSng(0.5) = 0.5 '> False True
