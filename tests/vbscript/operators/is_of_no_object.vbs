x = 5
WScript.Echo x Is Nothing '! 424
