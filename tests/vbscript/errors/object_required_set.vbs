Set x = "texto" '! 424
