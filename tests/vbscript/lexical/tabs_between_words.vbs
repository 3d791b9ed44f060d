x	=	1
If	x = 1	Then	WScript.Echo	"tab" '> tab
