WScript.Echo Unescape("a%20b%26c") '> a b&c
WScript.Echo Unescape("%F1%u20AC") '> ñ€
WScript.Echo Unescape("100%") '> 100%
