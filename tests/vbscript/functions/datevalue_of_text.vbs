WScript.Echo DateValue("mañana") '! 13
