Set o = Nothing
x = o & "a" '! 91
