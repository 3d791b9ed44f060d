s = "x"
Do
  s = s & s '! 7
Loop
