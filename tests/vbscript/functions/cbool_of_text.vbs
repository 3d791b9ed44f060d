WScript.Echo CBool("quizás") '! 13
