x = .Valor '! 505
