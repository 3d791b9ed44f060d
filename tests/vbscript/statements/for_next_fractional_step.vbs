For d = 0 To 1 Step 0.25
  n = n + 1
Next
WScript.Echo n, d '> 5 1,25
