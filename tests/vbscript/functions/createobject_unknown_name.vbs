Set o = CreateObject("Nada.Objeto") '! 429
