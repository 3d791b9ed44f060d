WScript.Echo 1, . '! 1010
