Dim nada
Set x = nada '! 424
