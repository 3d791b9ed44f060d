With o
  .x = 1
'! 1014 @*
