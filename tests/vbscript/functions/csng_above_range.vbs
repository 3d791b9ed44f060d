WScript.Echo CSng(1E39) '! 6
