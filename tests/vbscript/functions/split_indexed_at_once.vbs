WScript.Echo Split("10.20.30", ".")(1) '> 20
