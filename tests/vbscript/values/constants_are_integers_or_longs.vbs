WScript.Echo TypeName(vbBlack), TypeName(vbRed), TypeName(vbGreen), TypeName(vbYellow) '> Long Long Long Long
WScript.Echo TypeName(vbBlue), TypeName(vbMagenta), TypeName(vbCyan), TypeName(vbWhite) '> Long Long Long Long
WScript.Echo TypeName(vbObjectError), TypeName(vbMsgBoxHelpButton), TypeName(vbMsgBoxSetForeground) '> Long Long Long
WScript.Echo TypeName(vbMsgBoxRight), TypeName(vbMsgBoxRtlReading) '> Long Long
WScript.Echo TypeName(vbShortTime), TypeName(vbTrue), TypeName(vbFalse), TypeName(vbOKOnly) '> Integer Integer Integer Integer
WScript.Echo TypeName(vbSystemModal), TypeName(vbUseDefault), TypeName(vbArray), TypeName(vbSunday) '> Integer Integer Integer Integer
WScript.Echo TypeName(vbTextCompare), TypeName(vbYesNo), TypeName(vbCancel), TypeName(vbString) '> Integer Integer Integer Integer
