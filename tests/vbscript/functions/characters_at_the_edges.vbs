WScript.Echo AscW(ChrW(-32768)), AscW(ChrW(32768)), AscW(ChrW(65535)), AscW(ChrW(-1)), AscW(ChrW(32767)) '> -32768 -32768 -1 -1 32767
WScript.Echo Asc(Chr(255)), Asc(Chr(0)), Asc(ChrW(&H20AC)), AscW(Chr(128)), Asc(ChrW(&H4E00)) '> 255 0 128 8364 63
WScript.Echo Escape(ChrW(255)), Escape(ChrW(256)), Escape(ChrW(&HABCD)), Escape("*@-_+./aZ09"), Escape(" ~[") '> %FF %u0100 %uABCD *@-_+./aZ09 %20%7E%5B
On Error Resume Next
x = ChrW(-32769) : WScript.Echo Err.Number : Err.Clear '> 5
x = ChrW(65536) : WScript.Echo Err.Number : Err.Clear '> 5
x = Chr(256) : WScript.Echo Err.Number : Err.Clear '> 5
x = Chr(-1) : WScript.Echo Err.Number : Err.Clear '> 5
x = AscW("") : WScript.Echo Err.Number : Err.Clear '> 5
