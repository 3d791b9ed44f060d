Public Default x '! 1048
