Set o = Nothing
o.Algo '! 91
