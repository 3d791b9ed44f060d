x = 5
Call x() '! 13
