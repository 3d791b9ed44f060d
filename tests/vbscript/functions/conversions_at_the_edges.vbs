' Halves go to the even neighbour; what does not fit is error 6.
WScript.Echo CInt("32767"), CInt(32767.4), CInt(-32768.5), CInt("-32768"), CInt(0.5), CInt(1.5), CInt(2.5), CInt(-0.5), CInt(-1.5) '> 32767 32767 -32768 -32768 0 2 2 0 -2
WScript.Echo CLng("2147483647"), CLng(2147483647.4), CLng(-2147483648.5), CLng("-2147483648") '> 2147483647 2147483647 -2147483648 -2147483648
WScript.Echo CByte(255.4), CByte(-0.5), CByte("255"), CByte(254.5), CByte(True) '> 255 0 255 254 255
WScript.Echo CCur(0.03125), CCur(0.09375), CCur(-0.03125) '> 0,0312 0,0938 -0,0312
WScript.Echo CSng(3.4E38), CSng(1E-50), CSng("16777217") '> 3,4E+38 0 1,677722E+07
WScript.Echo CDate("36526"), CDate(2958465.5), Year(CDate(-657434)) '> 01/01/2000 31/12/9999 12:00:00 100
WScript.Echo TypeName(CInt(True)), CInt(True), CDbl(#1/1/2000#), CLng(#1/1/2000 18:00#), CCur(#1/1/2000#) '> Integer -1 36526 36527 36526
WScript.Echo Numero("CInt(""32768"")"), Numero("CInt(32767.5)"), Numero("CInt(-32768.6)"), Numero("CInt(32768)") '> 6 6 6 6
WScript.Echo Numero("CLng(2147483647.5)"), Numero("CLng(""2147483648"")"), Numero("CLng(-2147483648.6)") '> 6 6 6
WScript.Echo Numero("CByte(255.5)"), Numero("CByte(256)"), Numero("CByte(-0.6)"), Numero("CByte(-1)") '> 6 6 6 6
WScript.Echo Numero("CCur(""922337203685478"")"), Numero("CCur(1E15)"), Numero("CCur(-1E15)") '> 6 6 6
WScript.Echo Numero("CSng(3.5E38)"), Numero("CSng(-3.5E38)"), Numero("CDbl(""1E309"")"), Numero("CDbl(""-1E309"")") '> 6 6 6 6
WScript.Echo Numero("CDate(2958466)"), Numero("CDate(-657435)"), Numero("CDate(""2958466"")") '> 6 6 6
WScript.Echo Numero("Hex(2147483648)"), Numero("Oct(-2147483649)"), Hex(-2147483648), Hex(2147483647), Hex(65535), Hex(-1), Oct(-1) '> 6 6 80000000 7FFFFFFF FFFF FFFF 177777
WScript.Echo Hex(CLng(-1)), Oct(CLng(-1)), Hex(CByte(255)), Hex(15.5), Hex(14.5), Hex(True), Hex(CDbl(-1)) '> FFFFFFFF 37777777777 FF 10 E FFFF FFFFFFFF
Function Numero(texto)
  On Error Resume Next
  x = Eval(texto)
  Numero = Err.Number
End Function
