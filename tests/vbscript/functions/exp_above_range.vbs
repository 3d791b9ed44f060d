WScript.Echo Exp(709) > 1E307 '> True
WScript.Echo Exp(710) '! 6
