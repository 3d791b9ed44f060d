' Bytes within words.
Function Swap(v)
    Swap = ((v And &HFF) * 256) Or ((v And &HFF00&) \ 256)
End Function
WScript.Echo Hex(CInt("&H" & "7F") * 256 + 255), Hex((&H12 * 2 ^ 8) Or &H34), Hex(Swap(&H1234)), Hex(Swap(&HABCD&)) '> 7FFF 1234 3412 CDAB
WScript.Echo &HFF00 \ 256, &HFF00& \ 256, Hex(&H7FFF + 1), &H7FFF + 1 '> -1 255 8000 32768
