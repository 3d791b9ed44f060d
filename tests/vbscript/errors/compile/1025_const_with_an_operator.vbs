Const LADO = 2 * 3 '! 1025
