WScript.Echo TimeValue("tarde") '! 13
