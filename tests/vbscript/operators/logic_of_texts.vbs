WScript.Echo "5" And 4, "True" And True, Not "0" '> 4 True -1
