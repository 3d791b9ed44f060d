While True
  Exit Do '! 1039
Wend
