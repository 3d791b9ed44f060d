Set o = Nothing
x = o.Nombre '! 91
