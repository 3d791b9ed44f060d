' Semáforo: una máquina de estados. Cada estado dura un número de pasadas.
'
'   registro 70   luces, un bit cada una: 0 rojo, 1 ámbar, 2 verde
'   registro 71   pasadas que faltan para el cambio
'   registro 72   peatón: el maestro escribe 1 y el verde se acorta; el script lo vuelve a poner a 0

Const ESCLAVO = 1
Const LUCES = 70
Const FALTAN = 71
Const PEATON = 72

Dim estado, restan      ' declaradas aquí para que el procedimiento cambie estas y no unas suyas; Dim no las vacía

Sub pasarA(nuevoEstado, pasadas)
    estado = nuevoEstado
    restan = pasadas
End Sub

If IsEmpty(estado) Then
    mw.leer ESCLAVO, LUCES
    pasarA "rojo", 10
End If

If estado = "verde" And mw.leer(ESCLAVO, PEATON) = 1 Then
    If restan > 3 Then restan = 3
    mw.escribir ESCLAVO, PEATON, 0
End If

If restan = 0 Then
    Select Case estado
        Case "rojo"  pasarA "verde", 12
        Case "verde" pasarA "ambar", 3
        Case "ambar" pasarA "rojo", 10
    End Select
End If

Select Case estado
    Case "rojo"  mw.escribir ESCLAVO, LUCES, 1
    Case "ambar" mw.escribir ESCLAVO, LUCES, 2
    Case "verde" mw.escribir ESCLAVO, LUCES, 4
End Select
mw.escribir ESCLAVO, FALTAN, restan
restan = restan - 1
