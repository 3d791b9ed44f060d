WScript.Echo UCASE("a") & ucase("b") & uCaSe("c") '> ABC
