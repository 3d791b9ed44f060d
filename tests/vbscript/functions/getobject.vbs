Set o = GetObject("nada:objeto") '! 429
