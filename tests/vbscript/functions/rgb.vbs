WScript.Echo RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255) '> 255 65280 16711680
WScript.Echo RGB(300, 0, 0), TypeName(RGB(0, 0, 0)) '> 255 Long
