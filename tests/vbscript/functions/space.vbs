WScript.Echo "[" & Space(3) & "]" '> [   ]
WScript.Echo Len(Space(0)), Len(Space(1000)) '> 0 1000
