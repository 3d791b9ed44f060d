SetLocale 1033
d = #1/31/2020 2:05:09 PM#
WScript.Echo FormatDateTime(d) '> 1/31/2020 2:05:09 PM
WScript.Echo FormatDateTime(d, vbLongDate) '> Friday, January 31, 2020
WScript.Echo FormatDateTime(d, vbShortDate) '> 1/31/2020
WScript.Echo FormatDateTime(d, vbLongTime) '> 2:05:09 PM
WScript.Echo FormatDateTime(d, vbShortTime) '> 14:05
