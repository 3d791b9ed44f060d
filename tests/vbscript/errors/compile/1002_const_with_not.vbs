Const LADO = Not True '! 1002
