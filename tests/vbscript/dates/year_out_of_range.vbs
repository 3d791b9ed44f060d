d = DateSerial(9999, 12, 31)
x = DateAdd("d", 1, d) '! 5
