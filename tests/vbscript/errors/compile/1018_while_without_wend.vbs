While x < 3
  x = x + 1
'! 1018 @*
