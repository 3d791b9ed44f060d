WScript.Echo Asc(vbCr), Asc(vbLf), Len(vbCrLf), Len(vbNewLine), Asc(vbTab), Asc(vbFormFeed), Asc(vbVerticalTab) '> 13 10 2 2 9 12 11
WScript.Echo Len(vbNullChar), AscW(vbNullChar), Len(vbNullString) '> 1 0 0
