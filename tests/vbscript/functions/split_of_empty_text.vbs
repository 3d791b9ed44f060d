WScript.Echo UBound(Split("")), UBound(Split("", ",")) '> -1 -1
