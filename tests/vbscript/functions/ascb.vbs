WScript.Echo AscB("A") '> 65
WScript.Echo AscB(ChrW(&H20AC)) '> 172
