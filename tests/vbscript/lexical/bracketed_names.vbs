[un nombre con blancos] = 1
[if] = 2
[1º] = 3
WScript.Echo [un nombre con blancos], [IF], [1º] '> 1 2 3
