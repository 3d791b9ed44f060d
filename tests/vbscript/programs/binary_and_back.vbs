Function ToBin(n)
  Do
    ToBin = (n And 1) & ToBin
    n = n \ 2
  Loop While n > 0
End Function
Function FromBin(s)
  Dim i
  For i = 1 To Len(s) : FromBin = FromBin * 2 + Mid(s, i, 1) : Next
End Function
WScript.Echo ToBin(10), ToBin(255), ToBin(0) '> 1010 11111111 0
WScript.Echo FromBin("1010"), FromBin("1111111111111111") '> 10 65535
n = 6 : x = ToBin((n)) : WScript.Echo n '> 6
x = ToBin(n) : WScript.Echo n '> 0
