WScript.Echo CDate("hola") '! 13
