WScript.Echo Chr(65) & Chr(66) & Chr(67) '> ABC
WScript.Echo Chr(241) '> ñ
WScript.Echo Chr(128) '> €
WScript.Echo Len(Chr(0)), Chr(13) = vbCr '> 1 True
