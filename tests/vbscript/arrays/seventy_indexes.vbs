' No array has so many dimensions: as many indexes are out of range, wherever the array stands.
Class Box
  Public list
  Public Function Inside(text)
    Inside = Number("x = list(" & text & ")") & " " & Number("x = Me.list(" & text & ")")
  End Function
  Private Function Number(statement)
    On Error Resume Next
    Execute statement
    Number = Err.Number
  End Function
End Class
Dim a, o, x, indexes
a = Array(1, 2)
Set o = New Box
o.list = Array(1, 2)
For Each count In Array(2, 59, 60, 61, 62, 63, 64, 65, 70, 200)
  indexes = "0" & Replace(String(count - 1, ","), ",", ",0")
  WScript.Echo count, Number("x = a(" & indexes & ")"), Number("x = o.list(" & indexes & ")"), o.Inside(indexes)
Next
'> 2 9 9 9 9
'> 59 9 9 9 9
'> 60 9 9 9 9
'> 61 9 9 9 9
'> 62 9 9 9 9
'> 63 9 9 9 9
'> 64 9 9 9 9
'> 65 9 9 9 9
'> 70 9 9 9 9
'> 200 9 9 9 9
Function Number(statement)
  On Error Resume Next
  Execute statement
  Number = Err.Number
End Function
