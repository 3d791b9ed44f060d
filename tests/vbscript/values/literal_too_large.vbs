WScript.Echo 1.7E308 > 0
x = 1E309 '! 1031
