' An ampersand before digits is octal, too.
x = &100
WScript.Echo x, &17 '> 64 15
