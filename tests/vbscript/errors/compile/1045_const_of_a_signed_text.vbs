Const LADO = -"a" '! 1045
