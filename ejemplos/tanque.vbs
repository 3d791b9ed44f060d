' Tanque con control de nivel: dos bombas lo llenan, una válvula lo vacía.
'
'   registro 20   nivel, de 0 a 1000 (décimas de por ciento)
'   registro 21   apertura de la válvula, de 0 a 100 por ciento: la escribe el maestro
'   registro 22   arranque de las bombas: por debajo de este nivel se ponen en marcha (lo puede cambiar el maestro)
'   registro 23   paro de las bombas: por encima de este nivel se paran (lo puede cambiar el maestro)
'   registro 24   estado, un bit cada uno: 0 bomba 1, 1 bomba 2, 2 válvula abierta
'   registro 25   alarmas, un bit cada una: 0 muy bajo, 1 bajo, 2 alto, 3 muy alto

Const ESCLAVO = 1
Const NIVEL = 20
Const VALVULA = 21
Const ARRANQUE = 22
Const PARO = 23
Const ESTADO = 24
Const ALARMAS = 25

Const CAUDAL_BOMBA = 8      ' lo que sube el nivel en una pasada por cada bomba en marcha
Const CAUDAL_VALVULA = 12   ' lo que baja en una pasada con la válvula abierta del todo

' Entre el arranque y el paro la bomba sigue como estaba: esa histéresis evita que arranque y pare sin cesar.
Function marcha(ahora, altura, nivelArranque, nivelParo)
    If altura < nivelArranque Then
        marcha = True
    ElseIf altura > nivelParo Then
        marcha = False
    Else
        marcha = ahora
    End If
End Function

' Un bit vale 1 o 0, y True vale -1: de ahí esta función.
Function comoBit(condicion)
    If condicion Then comoBit = 1 Else comoBit = 0
End Function

If IsEmpty(altura) Then
    mw.leer ESCLAVO, NIVEL
    mw.escribir ESCLAVO, VALVULA, 50
    mw.escribir ESCLAVO, ARRANQUE, 400
    mw.escribir ESCLAVO, PARO, 800
    altura = 500
    bomba1 = False
    bomba2 = False
End If

' 1. Lo que piden el maestro y el operador.
apertura = mw.leer(ESCLAVO, VALVULA)
If apertura > 100 Then apertura = 100
nivelArranque = mw.leer(ESCLAVO, ARRANQUE)
nivelParo = mw.leer(ESCLAVO, PARO)

' 2. El control: la segunda bomba solo ayuda cuando la primera no basta.
bomba1 = marcha(bomba1, altura, nivelArranque, nivelParo)
bomba2 = marcha(bomba2, altura, nivelArranque / 2, nivelArranque)

' 3. El proceso.
altura = altura + CAUDAL_BOMBA * (comoBit(bomba1) + comoBit(bomba2)) - CAUDAL_VALVULA * apertura / 100
If altura < 0 Then altura = 0
If altura > 1000 Then altura = 1000

' 4. Lo que ve el maestro.
mw.escribir ESCLAVO, NIVEL, Round(altura)
mw.escribir_bit ESCLAVO, ESTADO, 0, comoBit(bomba1)
mw.escribir_bit ESCLAVO, ESTADO, 1, comoBit(bomba2)
mw.escribir_bit ESCLAVO, ESTADO, 2, comoBit(apertura > 0)
mw.escribir_bit ESCLAVO, ALARMAS, 0, comoBit(altura < 100)
mw.escribir_bit ESCLAVO, ALARMAS, 1, comoBit(altura < 250)
mw.escribir_bit ESCLAVO, ALARMAS, 2, comoBit(altura > 850)
mw.escribir_bit ESCLAVO, ALARMAS, 3, comoBit(altura > 950)
