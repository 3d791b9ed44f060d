WScript.Echo FormatPercent(0.5), FormatPercent(0.12345, 1), FormatPercent(-0.25, 0) '> 50,00% 12,3% -25%
