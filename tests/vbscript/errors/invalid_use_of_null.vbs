x = CLng(Null) '! 94
