' Contador de escrituras: nota que un maestro (o el operador) ha cambiado un registro.
'
'   registros 30 a 39   los vigilados
'   registro 40         cambios vistos desde el arranque; después de 65535 sigue en 0
'   registro 41         dirección del último registro que cambió
'   registro 42         el valor que tenía antes
'
' Una escritura que deja el mismo valor no se ve, y de dos entre una pasada y la siguiente se ve la última.

Const ESCLAVO = 1
Const PRIMERO = 30
Const ULTIMO = 39
Const CAMBIOS = 40
Const DIRECCION = 41
Const ANTERIOR = 42

If IsEmpty(contados) Then
    contados = 0
    Set conocidos = CreateObject("Scripting.Dictionary")   ' dirección -> valor en la pasada anterior
    For n = PRIMERO To ULTIMO
        conocidos(n) = mw.leer(ESCLAVO, n)
    Next
End If

For n = PRIMERO To ULTIMO
    valor = mw.leer(ESCLAVO, n)
    If valor <> conocidos(n) Then
        contados = (contados + 1) Mod 65536
        mw.escribir ESCLAVO, DIRECCION, n
        mw.escribir ESCLAVO, ANTERIOR, conocidos(n)
        conocidos(n) = valor
    End If
Next

mw.escribir ESCLAVO, CAMBIOS, contados
