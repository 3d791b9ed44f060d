For Each v In Array(1, 2, 3)
  If v = 2 Then Exit For
Next
WScript.Echo v '> 2
