' What failed is followed by the statement after it, inside that branch.
On Error Resume Next
Select Case 5
  Case 1 / 0
    x = "rama"
  Case 5
    x = "otra"
End Select
WScript.Echo Err.Number '> 11
