' With vbTextCompare accents decide last and ñ stands between n and o.
WScript.Echo StrComp("ñandú", "nube", vbTextCompare), StrComp("ñandú", "oso", vbTextCompare) '> 1 -1
WScript.Echo StrComp("ábaco", "abeja", vbTextCompare), StrComp("Árbol", "árbol", vbTextCompare) '> -1 0
WScript.Echo StrComp("ábaco", "abeja", vbBinaryCompare) '> 1
