' The digits that are seen are rounded, half away from zero; nothing is left of a sign when all are zero.
WScript.Echo FormatNumber(1.005), FormatNumber(9.995), FormatNumber(-0.001) '> 1,01 10,00 0,00
WScript.Echo FormatNumber(1E20, 0), FormatNumber(1E-20, 5) '> 100.000.000.000.000.000.000 0,00000
