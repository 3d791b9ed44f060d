' Positions in bytes: two a character.
WScript.Echo InStrB("abc", "b") '> 3
WScript.Echo InStrB("abc", "z") '> 0
