Set f = GetRef("NoExiste") '! 5
