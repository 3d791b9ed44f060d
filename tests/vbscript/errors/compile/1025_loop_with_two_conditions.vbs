Do While x < 1
  x = 1
Loop Until x = 1 '! 1025
