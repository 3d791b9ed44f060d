x = 5
Erase x '! 13
