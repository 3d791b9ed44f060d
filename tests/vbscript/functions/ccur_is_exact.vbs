' Ten times a tenth is one: Currency has no binary fractions.
total = CCur(0)
For i = 1 To 10
  total = total + CCur(0.1)
Next
WScript.Echo total - 1, total = 1 '> 0 True
