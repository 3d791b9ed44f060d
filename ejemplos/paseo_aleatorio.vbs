' Paseo aleatorio: una medida que se mueve al azar, como la temperatura de una sala.
'
'   registro 50   la medida, de MINIMO a MAXIMO
'   registro 51   lo que se ha movido en esta pasada, con signo, en complemento a dos
'   registro 52   la mínima desde el arranque
'   registro 53   la máxima desde el arranque

Const ESCLAVO = 1
Const MEDIDA = 50
Const MOVIMIENTO = 51
Const MENOR = 52
Const MAYOR = 53

Const MINIMO = 150
Const MAXIMO = 300
Const PASO = 5

If IsEmpty(temperatura) Then
    mw.leer ESCLAVO, MEDIDA
    Randomize                   ' sin esta línea el paseo es el mismo en cada arranque
    temperatura = 200
    laMenor = temperatura
    laMayor = temperatura
End If

antes = temperatura
temperatura = temperatura + Int((2 * PASO + 1) * Rnd) - PASO   ' de -PASO a PASO, todos igual de probables
If temperatura < MINIMO Then temperatura = MINIMO
If temperatura > MAXIMO Then temperatura = MAXIMO
If temperatura < laMenor Then laMenor = temperatura
If temperatura > laMayor Then laMayor = temperatura

mw.escribir ESCLAVO, MEDIDA, temperatura
mw.escribir_C2 ESCLAVO, MOVIMIENTO, temperatura - antes
mw.escribir ESCLAVO, MENOR, laMenor
mw.escribir ESCLAVO, MAYOR, laMayor
