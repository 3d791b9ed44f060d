x = 5
Const C = x '! 1045
