Option Explicit
noExiste 1 '! 500
