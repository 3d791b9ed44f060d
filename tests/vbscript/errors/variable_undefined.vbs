Option Explicit
Dim x
x = y '! 500
