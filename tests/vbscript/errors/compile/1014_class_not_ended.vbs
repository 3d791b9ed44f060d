Class C
  Public x
'! 1014 @*
