' Lecturas del puerto serie a registros.
'
' Cada trama que llega por el puerto pone cinco variables del script: AA, MM y DD (la fecha), ID (el identificador) y
' VALIDEZ (por cuántas pasadas sigue siendo buena la lectura).
'
'   registros 60, 61 y 62   año (dos cifras), mes y día de la última lectura
'   registros 63 y 64       identificador: palabra baja y palabra alta
'   registro 65             lecturas recibidas; después de 65535 sigue en 0
'   registro 66             bit 0: la lectura es reciente

Const ESCLAVO = 1
Const FECHA = 60
Const IDENTIFICADOR = 63
Const RECIBIDAS = 65
Const ESTADO = 66

If IsEmpty(lecturas) Then
    mw.leer ESCLAVO, FECHA
    lecturas = 0
    pasadasQueQuedan = 0
End If

If Not IsEmpty(ID) Then
    lecturas = (lecturas + 1) Mod 65536
    pasadasQueQuedan = VALIDEZ
    mw.escribir ESCLAVO, FECHA, AA
    mw.escribir ESCLAVO, FECHA + 1, MM
    mw.escribir ESCLAVO, FECHA + 2, DD
    mw.escribir ESCLAVO, IDENTIFICADOR, ID - 65536 * Int(ID / 65536)   ' Mod no pasa de 2147483647
    mw.escribir ESCLAVO, IDENTIFICADOR + 1, Int(ID / 65536)
    ID = Empty                  ' vista: así la próxima trama se distingue, aunque sea igual
ElseIf pasadasQueQuedan > 0 Then
    pasadasQueQuedan = pasadasQueQuedan - 1
End If

mw.escribir ESCLAVO, RECIBIDAS, lecturas
If pasadasQueQuedan > 0 Then
    mw.escribir_bit ESCLAVO, ESTADO, 0, 1
Else
    mw.escribir_bit ESCLAVO, ESTADO, 0, 0
End If
