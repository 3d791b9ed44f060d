WScript.Echo 3 * 4, 1.5 * 2, "3" * "4" '> 12 3 12
WScript.Echo TypeName(3 * 4), TypeName("3" * "4") '> Integer Double
