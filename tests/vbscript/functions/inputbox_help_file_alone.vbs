x = InputBox("a", , , , , "f") '! 5
