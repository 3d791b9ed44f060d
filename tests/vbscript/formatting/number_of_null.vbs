x = FormatNumber(Null) '! 94
