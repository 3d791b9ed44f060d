WScript.Echo Abs("hola") '! 13
