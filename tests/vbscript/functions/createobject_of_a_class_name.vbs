' RegExp is a class of the language: New makes it, CreateObject does not.
Set o = CreateObject("RegExp") '! 429
