Call 5 '! 1010
