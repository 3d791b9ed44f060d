Sub S
  x = 1
'! 1014 @*
