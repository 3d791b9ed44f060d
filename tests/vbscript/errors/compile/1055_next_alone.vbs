x = 1
Next '! 1055
