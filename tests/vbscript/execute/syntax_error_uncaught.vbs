x = 1
Execute "If True" '! 1017 @*
