For Each a In Array(Array(1, 2), Array(3))
  For Each b In a
    s = s & b
  Next
  s = s & "|"
Next
WScript.Echo s & "." '> 12|3|.
