' A script without procedures: every name is a global.
Dim flags(200000), i, k, count, x, y, sum, a, b, c
count = 0
For i = 2 To 200000
  flags(i) = True
Next
For i = 2 To 200000
  If flags(i) Then
    count = count + 1
    k = i + i
    Do While k <= 200000
      flags(k) = False
      k = k + i
    Loop
  End If
Next
WScript.Echo count
sum = 0
For a = 1 To 60
  For b = 1 To 60
    For c = 1 To 60
      If (a * b + c) Mod 7 = 3 Then sum = sum + a - c
    Next
  Next
Next
WScript.Echo sum
x = 0.0
y = 0.5
For i = 1 To 300000
  x = x * 0.5 + y
  y = (x + y) * 0.25 + 1.0
Next
WScript.Echo Int(x * 1000)
