' Unlike Round, which goes to the even neighbour.
WScript.Echo FormatNumber(2.5, 0), Round(2.5) '> 3 2
WScript.Echo FormatNumber(-2.5, 0), FormatNumber(0.125, 2) '> -3 0,13
