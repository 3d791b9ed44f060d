Err.Raise 0 '! 5
