Const LADO = -vbTrue '! 1045
