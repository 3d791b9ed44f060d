Const LADO = (2) '! 1045
