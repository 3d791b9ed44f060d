a = Filter("texto", "t") '! 13
