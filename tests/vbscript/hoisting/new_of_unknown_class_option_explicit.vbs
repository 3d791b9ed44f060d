Option Explicit
Dim o
Set o = New NoExiste '! 500
