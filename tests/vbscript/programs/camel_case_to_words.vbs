Set r = New RegExp
r.Global = True
r.Pattern = "([a-z])([A-Z])"
WScript.Echo LCase(r.Replace("ThisIsSomeText", "$1 $2")) '> this is some text
r.Pattern = "_(\w)"
Function Up(m, c, at, whole) : Up = UCase(c) : End Function
WScript.Echo r.Replace("one_two_three", GetRef("Up")) '> oneTwoThree
