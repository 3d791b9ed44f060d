WScript.Echo CCur(1E15) '! 6
