' Rampa: el registro 0 del esclavo 1 sube de PASO en PASO hasta MAXIMO y vuelve a empezar en 0.
'
' La estación ejecuta el texto entero en cada pasada. Las variables conservan su valor de una pasada a la siguiente;
' antes de la primera están vacías, y así se la reconoce.

Const ESCLAVO = 1
Const REGISTRO = 0
Const PASO = 10
Const MAXIMO = 1000

If IsEmpty(valor) Then
    mw.leer ESCLAVO, REGISTRO   ' leer crea el esclavo si aún no existe; escribir no lo crea
    valor = 0
Else
    valor = valor + PASO
    If valor > MAXIMO Then valor = 0
End If

mw.escribir ESCLAVO, REGISTRO, valor
