WScript.Echo "5" And 4, Not "0" '> 4 -1
