Set o = New NoExiste '! 506
