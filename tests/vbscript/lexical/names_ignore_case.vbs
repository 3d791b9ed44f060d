Contador = 1
CONTADOR = contador + 1
wscript.echo conTADor '> 2
