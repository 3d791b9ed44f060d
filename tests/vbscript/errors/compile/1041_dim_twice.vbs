Dim x
Dim x '! 1041
