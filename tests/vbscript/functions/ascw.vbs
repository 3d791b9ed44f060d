WScript.Echo AscW("A") '> 65
WScript.Echo AscW("€") '> 8364
WScript.Echo AscW("ñandú") '> 241
