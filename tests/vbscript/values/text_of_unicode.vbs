s = "añ€" & ChrW(&HD83D) & ChrW(&HDE00)
WScript.Echo Len(s), s '> 5 añ€😀
