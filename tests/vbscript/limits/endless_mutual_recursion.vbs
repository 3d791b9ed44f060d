Sub A
  B '! 28 @*
End Sub
Sub B
  A
End Sub
A
