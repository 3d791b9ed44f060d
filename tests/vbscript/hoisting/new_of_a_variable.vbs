x = 5
Set o = New x '! 506
