If True Then
  x = 1
'! 1014 @*
