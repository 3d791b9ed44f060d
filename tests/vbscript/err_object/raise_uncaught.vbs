Err.Raise 1234, "origen", "texto" '! 1234
