For i = 1 To 3
  x = i
'! 1020 @*
