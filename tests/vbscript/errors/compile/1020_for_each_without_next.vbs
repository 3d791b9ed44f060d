For Each v In a
'! 1020 @*
