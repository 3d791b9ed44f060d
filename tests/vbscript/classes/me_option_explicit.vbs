Option Explicit
Dim total
Me.total = 3
WScript.Echo total '> 3
Me.otra = 3 '! 438
