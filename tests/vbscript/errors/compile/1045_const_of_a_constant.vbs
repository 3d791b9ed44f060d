Const UNO = 1
Const DOS = UNO '! 1045
