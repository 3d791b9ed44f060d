WScript.Echo Hex(True), Hex(CByte(200)), Hex(-1.0), Hex("-1") '> FFFF C8 FFFFFFFF FFFFFFFF
WScript.Echo Hex(&HABCDEF), Oct(511.5) '> ABCDEF 1000
