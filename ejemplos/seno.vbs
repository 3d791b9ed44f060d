' Seno: una onda completa cada PASADAS_POR_VUELTA pasadas.
'
'   registro 10   la onda con signo, de -AMPLITUD a AMPLITUD, en complemento a dos (el maestro la lee como INT)
'   registro 11   la misma onda sin signo, de 0 a 2 * AMPLITUD (el maestro la lee como UINT)

Const ESCLAVO = 1
Const CON_SIGNO = 10
Const SIN_SIGNO = 11
Const AMPLITUD = 1000
Const PASADAS_POR_VUELTA = 60

If IsEmpty(pasada) Then
    mw.leer ESCLAVO, CON_SIGNO
    pasada = 0
    dosPi = 8 * Atn(1)          ' el lenguaje no tiene la constante: Atn(1) es pi / 4
Else
    pasada = (pasada + 1) Mod PASADAS_POR_VUELTA
End If

onda = Round(AMPLITUD * Sin(dosPi * pasada / PASADAS_POR_VUELTA))

mw.escribir_C2 ESCLAVO, CON_SIGNO, onda          ' admite valores negativos
mw.escribir ESCLAVO, SIN_SIGNO, onda + AMPLITUD
