' The check sum of a frame and bytes within words.
Function Crc(bytes)
    Dim c, b, k: c = &HFFFF&
    For Each b In bytes
        c = c Xor b
        For k = 1 To 8
            If c And 1 Then c = (c \ 2) Xor &HA001& Else c = c \ 2
        Next
    Next
    Crc = c
End Function
Function Swap(v)
    Swap = ((v And &HFF) * 256) Or ((v And &HFF00&) \ 256)
End Function
WScript.Echo Right("000" & Hex(Crc(Array(1, 3, 0, 0, 0, 10))), 4) '> CDC5
WScript.Echo Hex(CInt("&H" & "7F") * 256 + 255), Hex((&H12 * 2 ^ 8) Or &H34), Hex(Swap(&H1234)), Hex(Swap(&HABCD&)) '> 7FFF 1234 3412 CDAB
WScript.Echo &HFF00 \ 256, &HFF00& \ 256, Hex(&H7FFF + 1), &H7FFF + 1 '> -1 255 8000 32768
