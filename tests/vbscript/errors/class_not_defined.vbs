Set x = New Clase '! 506
