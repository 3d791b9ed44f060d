Option Explicit
Dim x
x = 1 + noDeclarada '! 500
