WScript.Echo "5" - "2", "5" - 2, TypeName("5" - "2") '> 3 3 Double
