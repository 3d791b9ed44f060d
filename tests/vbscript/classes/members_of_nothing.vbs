On Error Resume Next
Set t = Nothing
t.Ring : WScript.Echo Err.Number : Err.Clear '> 424
t.Ring 1, 2 : WScript.Echo Err.Number : Err.Clear '> 424
x = t.pitch : WScript.Echo Err.Number : Err.Clear '> 424
x = t.pitch(3) : WScript.Echo Err.Number : Err.Clear '> 424
t.pitch = 2 : WScript.Echo Err.Number : Err.Clear '> 424
t.pitch(1) = 2 : WScript.Echo Err.Number : Err.Clear '> 424
Set t.owner = t : WScript.Echo Err.Number : Err.Clear '> 424
Set t.owner(1) = t : WScript.Echo Err.Number : Err.Clear '> 424
Call t.Ring() : WScript.Echo Err.Number : Err.Clear '> 424
With t
  .Ring : WScript.Echo Err.Number : Err.Clear '> 424
  x = .pitch : WScript.Echo Err.Number : Err.Clear '> 424
  .pitch = 1 : WScript.Echo Err.Number : Err.Clear '> 424
End With
x = Nothing.pitch : WScript.Echo Err.Number : Err.Clear '> 424
