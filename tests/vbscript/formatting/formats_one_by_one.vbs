' A format a line.
'after ../expressions.inc
X "FormatNumber(0.5, 0)" '> String 1
X "FormatNumber(1.5, 0)" '> String 2
X "FormatNumber(2.5, 0)" '> String 3
X "FormatNumber(-1.005, 2)" '> String -1.01
X "FormatNumber(0.5, 2, 0)" '> String .50
X "FormatNumber(-0.5, 2, 0)" '> String -.50
X "FormatNumber(-5, 1, -1, -1)" '> String (5.0)
X "FormatNumber(12345, 0, -1, 0, 0)" '> String 12345
X "FormatNumber(12345)" '> String 12,345.00
X "FormatNumber(""12345.678"", 1)" '> String 12,345.7
X "FormatNumber(True)" '> String -1.00
X "FormatNumber(Empty)" '> String 0.00
X "FormatPercent(0.12345)" '> String 12.35%
X "FormatPercent(-0.5, 0)" '> String -50%
X "FormatPercent(1)" '> String 100.00%
X "FormatCurrency(1234.5)" '> String $1,234.50
X "FormatCurrency(-1234.5)" '> String ($1,234.50)
X "FormatCurrency(-1, 0, , 0)" '> String -$1
X "FormatDateTime(#1/2/2020 3:04:05 PM#)" '> String 1/2/2020 3:04:05 PM
X "FormatDateTime(#1/2/2020#)" '> String 1/2/2020
X "FormatDateTime(#3:04:05 PM#)" '> String 3:04:05 PM
X "FormatDateTime(#1/2/2020 3:04:05 PM#, 1)" '> String Thursday, January 2, 2020
X "FormatDateTime(#1/2/2020 3:04:05 PM#, 2)" '> String 1/2/2020
X "FormatDateTime(#1/2/2020 3:04:05 PM#, 3)" '> String 3:04:05 PM
X "FormatDateTime(#1/2/2020 3:04:05 PM#, 4)" '> String 15:04
