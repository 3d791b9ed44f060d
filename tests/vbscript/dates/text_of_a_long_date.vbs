WScript.Echo CDate("viernes, 31 de enero de 2020"), CDate("January 31, 2020 2:05 PM") '> 31/01/2020 31/01/2020 14:05:00
WScript.Echo CDate(FormatDateTime(#8/23/2020#, vbLongDate)) '> 23/08/2020
