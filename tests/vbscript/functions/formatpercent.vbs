WScript.Echo FormatPercent(0.256) '> 25,60%
WScript.Echo FormatPercent(1, 0), FormatPercent(12.5, 0) '> 100% 1.250%
WScript.Echo FormatPercent(-0.5, 1, vbTrue, vbTrue) '> (50,0%)
