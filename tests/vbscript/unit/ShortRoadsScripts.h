// The scripts of ShortRoadsTest: one operator, written @, on operands from every place. A # is a small number.
#pragma once

// Every place that an operand may have, and what the result may fall upon.
inline constexpr const char* valuesOfEveryPlace = R"vbs(Option Explicit
Dim gx, gy, gz, holder
Class Fields
  Public x, y, z
  Sub Work
    On Error Resume Next
    z = x @ y
    bench.Note "fields", z, Err.Number
  End Sub
End Class
Function Same(v)
  Same = v
End Function
Sub ByReference(x, y)
  Dim z
  On Error Resume Next
  z = x @ y
  bench.Note "references", z, Err.Number
  If False Then x = y : y = x
End Sub
Sub Locals
  Dim x, y, z
  On Error Resume Next
  x = bench.X
  y = bench.Y
  z = x @ y
  bench.Note "locals", z, Err.Number
  Err.Clear
  z = Same(x) @ Same(y)
  bench.Note "temporaries", z, Err.Number
  Err.Clear
  z = "a text"
  z = x @ y
  bench.Note "a variable that held a text", z, Err.Number
  Err.Clear
  Set z = New Fields
  z = x @ y
  bench.Note "a variable that held an object", z, Err.Number
  Err.Clear
  z = x @ gy
  bench.Note "a local and a global", z, Err.Number
  Err.Clear
  ByReference x, y
  x = x @ y
  bench.Note "its own operand", x, Err.Number
End Sub
On Error Resume Next
gx = bench.X
gy = bench.Y
gz = gx @ gy
bench.Note "globals", gz, Err.Number
Err.Clear
Set holder = New Fields
holder.x = gx
holder.y = gy
holder.Work
Locals
)vbs";

// The same in conditions, which jump without a Boolean in between.
inline constexpr const char* conditionsOfEveryPlace = R"vbs(Option Explicit
Dim gx, gy, said
Sub ByReference(x, y)
  Dim said
  On Error Resume Next
  said = "no"
  If x @ y Then said = "yes"
  bench.Truth "If on references", said, Err.Number
  If False Then x = y : y = x
End Sub
Sub Locals
  Dim x, y, said
  On Error Resume Next
  x = bench.X
  y = bench.Y
  said = "no"
  If x @ y Then said = "yes"
  bench.Truth "If", said, Err.Number
  Err.Clear
  said = "no"
  If x @ gy Then said = "yes"
  bench.Truth "If on a local and a global", said, Err.Number
  Err.Clear
  ByReference x, y
End Sub
Sub Loops
  Dim x, y, said, turns
  x = bench.X
  y = bench.Y
  said = "no"
  Do While x @ y
    said = "yes"
    Exit Do
  Loop
  bench.Truth "Do While", said, 0
  said = "yes"
  turns = 0
  Do
    turns = turns + 1
    If turns > 1 Then
      said = "no"
      Exit Do
    End If
  Loop Until x @ y
  bench.Truth "Loop Until", said, 0
End Sub
On Error Resume Next
gx = bench.X
gy = bench.Y
said = "no"
If gx @ gy Then said = "yes"
bench.Truth "If on globals", said, Err.Number
Err.Clear
Locals
On Error GoTo 0
If Err.Number = 0 Then Loops
)vbs";

// A small number for the second operand.
inline constexpr const char* besideASmallNumber = R"vbs(
Sub ByReference(x)
  Dim z
  On Error Resume Next
  z = x @ #
  bench.Note "a reference", z, Err.Number
  If False Then x = 0
End Sub
Sub Grow(x)
  On Error Resume Next
  x = x @ #
  bench.Note "a reference that is its own operand", x, Err.Number
End Sub
Sub Locals
  Dim x, z
  On Error Resume Next
  x = bench.X
  z = x @ #
  bench.Note "a local", z, Err.Number
  Err.Clear
  ByReference x
  x = x @ #
  bench.Note "its own operand", x, Err.Number
  Err.Clear
  x = bench.X
  Grow x
End Sub
Dim g
On Error Resume Next
g = bench.X
g = g @ #
bench.Note "a global", g, Err.Number
Locals
)vbs";
inline constexpr const char* conditionsBesideASmallNumber = R"vbs(
Sub ByReference(x)
  Dim said
  said = "no"
  If x @ # Then said = "yes"
  bench.Truth "If on a reference", said, 0
  If False Then x = 0
End Sub
Sub Locals
  Dim x, said
  x = bench.X
  said = "no"
  If x @ # Then said = "yes"
  bench.Truth "If", said, 0
  ByReference x
End Sub
Dim g, said
g = bench.X
said = "no"
If g @ # Then said = "yes"
bench.Truth "If on a global", said, 0
Locals
)vbs";
