Dim o
o.Algo '! 424
