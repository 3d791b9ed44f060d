x = "texto"
x.Metodo '! 424
