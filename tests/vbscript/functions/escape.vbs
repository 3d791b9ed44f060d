WScript.Echo Escape("a b&c") '> a%20b%26c
WScript.Echo Escape("ñ"), Escape("€") '> %F1 %u20AC
WScript.Echo Escape("AZaz09*@-_+./") '> AZaz09*@-_+./
