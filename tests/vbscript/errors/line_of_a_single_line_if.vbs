x = 0
If x = 0 Then y = 1 / x '! 11
