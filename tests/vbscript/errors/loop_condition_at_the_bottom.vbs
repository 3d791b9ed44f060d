Do
  x = x + 1
Loop While CInt("a") '! 13
