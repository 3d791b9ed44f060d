' A text in hexadecimal or octal digits: 16 bits or 32, both signed; an & at the end makes it 32, as in a literal.
WScript.Echo CLng("&HFFFF"), CLng("&HFFFF&"), CLng("&H8000"), CLng("&H8000&"), CLng("&H7FFF&") '> -1 65535 -32768 32768 32767
WScript.Echo CLng("&HFFFFFFFF"), CLng("&HFFFFFFFF&"), CLng("&H10000"), CLng("&H10000&") '> -1 -1 65536 65536
WScript.Echo CLng("&O177777"), CLng("&O177777&"), CLng("&o17&"), CLng("&hff&") '> -1 65535 15 255
WScript.Echo CDbl("&HFFFE&"), CCur("&HFFFE&"), CCur("&HFFFE"), "&HFFFE&" + 1, "&HFFFE" + 1 '> 65534 65534 -2 65535 -1
WScript.Echo IsNumeric("&HFF&"), IsNumeric("&H&"), IsNumeric("&HFF&&"), IsNumeric("&HG") '> True False False False
v = "&HFFFF&"
WScript.Echo v = 65535, v = &HFFFF&, v * 2 '> True True 131070
