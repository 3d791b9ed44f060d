Set o = Nothing
o.Algo '! 424
