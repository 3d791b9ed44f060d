x = "no 'es' comentario" ' este sí
WScript.Echo x '> no 'es' comentario
