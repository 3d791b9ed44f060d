x = String(3, "") '! 5
