' All fifteen digits in front of the decimal sign, or all but one.
WScript.Echo FormatPercent(123456789012345, 0), FormatPercent(12345678901234.5, 0), FormatPercent(1E15, 1) '> 12.345.678.901.234.500% 1.234.567.890.123.450% 100.000.000.000.000.000,0%
WScript.Echo FormatPercent(0), FormatPercent(0.12345), FormatPercent(-0.00004), FormatPercent(CCur(0.5), 1), FormatPercent(CSng(0.1), 3) '> 0,00% 12,35% 0,00% 50,0% 10,000%
