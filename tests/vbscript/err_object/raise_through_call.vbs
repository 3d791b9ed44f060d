Call Err.Raise(700) '! 700
