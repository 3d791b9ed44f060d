WScript.Echo Len("año"), AscW(Mid("año", 2, 1)) '> 3 241
