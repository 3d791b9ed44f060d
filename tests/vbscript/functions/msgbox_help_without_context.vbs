x = MsgBox("texto", 0, "título", "ayuda.hlp") '! 5
