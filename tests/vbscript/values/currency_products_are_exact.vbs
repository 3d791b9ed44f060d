' A product of amounts is exact up to the last ten-thousandth; halves go to the even neighbour.
a = CCur(900000000000.1234)
WScript.Echo a * CCur(2), a * 3, CCur(-1) * a, TypeName(a * 3) '> 1800000000000,2468 2700000000000,3702 -900000000000,1234 Currency
b = CCur(0.0001)
WScript.Echo b * CCur(0.5), b * CCur(1.5), b * CCur(2.5), b * CCur(-1.5), b * CCur(0.4) '> 0 0,0002 0,0002 -0,0002 0
WScript.Echo CCur(90000000000000) * 1, CCur(-90000000000000) * CByte(1), CCur(3) * True '> 90000000000000 -90000000000000 -3
On Error Resume Next
x = CCur(922337203685477) * 2 : WScript.Echo Err.Number '> 6
