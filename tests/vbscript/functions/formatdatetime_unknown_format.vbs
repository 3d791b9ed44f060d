WScript.Echo FormatDateTime(#1/31/2020#, 9) '! 5
