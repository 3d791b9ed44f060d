x = InStr(Null, "abc", "a") '! 94
