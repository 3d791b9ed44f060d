WScript.Echo Replace(Null, "a", "b") '! 94
