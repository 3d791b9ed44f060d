Set x = 5 '! 424
