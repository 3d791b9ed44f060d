x = 1
Loop '! 1038
