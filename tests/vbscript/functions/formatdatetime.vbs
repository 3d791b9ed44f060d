d = #1/31/2020 2:05:09 PM#
WScript.Echo FormatDateTime(d) '> 31/01/2020 14:05:09
WScript.Echo FormatDateTime(d, vbGeneralDate) '> 31/01/2020 14:05:09
WScript.Echo FormatDateTime(d, vbLongDate) '> viernes, 31 de enero de 2020
WScript.Echo FormatDateTime(d, vbShortDate) '> 31/01/2020
WScript.Echo FormatDateTime(d, vbLongTime) '> 14:05:09
WScript.Echo FormatDateTime(d, vbShortTime) '> 14:05
