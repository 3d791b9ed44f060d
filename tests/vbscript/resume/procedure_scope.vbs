' A procedure without a handler of its own is left at its error; the caller goes on.
Sub Falla
  WScript.Echo "antes"
  x = 1 / 0
  WScript.Echo "nunca"
End Sub
On Error Resume Next
Falla '> antes
WScript.Echo "sigue", Err.Number '> sigue 11
