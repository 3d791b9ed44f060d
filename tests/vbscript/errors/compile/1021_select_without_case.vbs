Select x '! 1021
End Select
