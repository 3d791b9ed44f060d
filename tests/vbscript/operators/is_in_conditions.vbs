' Is, Not ... Is and And as the conditions of loops and of If, with variables of the script and of a procedure.
Set a = New RegExp
Set b = a
If a Is b Then WScript.Echo "same" '> same
If Not a Is b Then WScript.Echo "other"
Do While a Is b
  WScript.Echo "while" '> while
  Set b = New RegExp
Loop
Do Until a Is b
  WScript.Echo "until" '> until
  Set b = a
Loop
Do
  WScript.Echo "once" '> once
  Set b = Nothing
Loop While a Is b
Do While b Is Nothing
  WScript.Echo "nothing" '> nothing
  Set b = a
Loop
Do Until b Is Nothing
  WScript.Echo "something" '> something
  Set b = Nothing
Loop
Do
  WScript.Echo "again" '> again
  Set a = Nothing
Loop Until a Is Nothing

Sub P(given)
  Dim x, y, n
  Set x = New RegExp
  Set y = x
  If x Is y Then WScript.Echo "same" Else WScript.Echo "other" '> same
  If Not x Is Nothing Then WScript.Echo "there" '> there
  Do While Not y Is Nothing
    n = n + 1
    If n = 2 Then Set y = Nothing
  Loop
  WScript.Echo n '> 2
  Do While Not given And x Is x And n < 4
    n = n + 1
  Loop
  WScript.Echo n '> 4
  Do Until n > 5 And Not given
    n = n + 1
  Loop
  WScript.Echo n '> 6
  Do
    n = n - 1
  Loop While n > 2 And x Is x
  WScript.Echo n '> 2
End Sub
P False

On Error Resume Next
v = 5
Do Until v Is Nothing
  WScript.Echo "entered with " & Err.Number '> entered with 424
  Exit Do
Loop
Err.Clear
Do
  n = n + 1
Loop While v Is a
WScript.Echo n & " " & Err.Number '> 1 424
