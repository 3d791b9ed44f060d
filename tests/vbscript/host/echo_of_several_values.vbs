WScript.Echo "a", 1, True, Empty, "b" '> a 1 True  b
WScript.Echo
'>
WScript.Echo ""
'>
