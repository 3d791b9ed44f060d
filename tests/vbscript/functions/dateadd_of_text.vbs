WScript.Echo DateAdd("D", 1, "28/02/2020") '> 29/02/2020
