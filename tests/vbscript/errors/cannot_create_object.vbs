Set x = CreateObject("ADODB.Connection") '! 429
