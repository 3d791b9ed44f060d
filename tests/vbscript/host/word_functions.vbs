WScript.Echo mw.SINGLEINT(-1), mw.SINGLEINT(5), mw.SINGLEINT(-70000) '> 65535 5 -4464
WScript.Echo mw.NBit(8, 3), mw.NBit(8, 2) '> 1 0
WScript.Echo mw.SetearBIT_YDevolverPalabra(8, 0, 1), mw.SetearBIT_YDevolverPalabra(9, 3, 0) '> 9 1
