Option Explicit
ReDim nueva(2), otra(1, 1)
WScript.Echo UBound(nueva), UBound(otra, 2) '> 2 1
