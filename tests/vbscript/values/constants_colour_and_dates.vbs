WScript.Echo vbBlack, vbRed, vbGreen, vbYellow, vbBlue, vbMagenta, vbCyan, vbWhite '> 0 255 65280 65535 16711680 16711935 16776960 16777215
WScript.Echo vbSunday, vbMonday, vbTuesday, vbWednesday, vbThursday, vbFriday, vbSaturday '> 1 2 3 4 5 6 7
WScript.Echo vbUseSystem, vbUseSystemDayOfWeek, vbFirstJan1, vbFirstFourDays, vbFirstFullWeek '> 0 0 1 2 3
WScript.Echo vbGeneralDate, vbLongDate, vbShortDate, vbLongTime, vbShortTime '> 0 1 2 3 4
