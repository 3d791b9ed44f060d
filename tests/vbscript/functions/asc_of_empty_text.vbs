WScript.Echo Asc("") '! 5
