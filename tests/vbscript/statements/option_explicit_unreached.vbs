' Undeclared names are found when the statement runs, not before.
Option Explicit
If False Then noDeclarada = 1
WScript.Echo "fin" '> fin
