WScript.Echo FormatDateTime(#2:05:09 PM#, vbGeneralDate) '> 14:05:09
WScript.Echo FormatDateTime(#1/31/2020#, vbGeneralDate) '> 31/01/2020
WScript.Echo FormatDateTime(#9:05 AM#, vbShortTime) '> 09:05
