For Each v In 5 '! 451
Next
