Option Explicit
' Typical of logon scripts: constants, a dictionary of objects, nested With, continuation lines, Rem and odd spacing.
Const ForReading = 1 : Const HKLM = &H80000002
Dim dicEquipos, strClave, objEquipo, arrLineas, i, intTotal
Set dicEquipos = CreateObject("Scripting.Dictionary") : dicEquipos.CompareMode = vbTextCompare
Rem una línea de comentario : con dos puntos
arrLineas = Split("PC01;8;ON|PC02;16;OFF|" & _
                  "srv1;64;ON|pc01;12;ON", _
                  "|")
For i = LBound(arrLineas) To UBound(arrLineas) Step 1
  Dim partes : partes = Split (arrLineas(i), ";")
  If Not dicEquipos.Exists(partes(0)) Then
    Set objEquipo = New Equipo : With objEquipo
      .Nombre = partes(0) : .Memoria = CInt(partes(1))
      .Encendido = (partes(2) = "ON")
    End With
    dicEquipos.Add partes(0), objEquipo
  ElseIf partes(2) = "OFF" Then
    ' nada
  Else
    dicEquipos(partes(0)).Memoria = partes(1)
  End If : Next
For Each strClave In dicEquipos.Keys
  With dicEquipos.Item(strClave)
    Select Case .Memoria
      Case 8, 12 : Anota .Nombre, "poca"
      Case 16
        Call Anota(.Nombre, "media")
      Case Else Anota .Nombre, "mucha"
    End Select
    If .Encendido Then intTotal = intTotal + CInt(.Memoria) Else intTotal = intTotal - 1
  End With
Next
'> PC01: poca
'> PC02: media
'> srv1: mucha
WScript.Echo intTotal, dicEquipos.Count, HKLM '> 75 3 -2147483646
Sub Anota (ByVal strNombre, _
           ByVal strTexto)
  WScript.Echo strNombre & ": " & strTexto
End Sub
Class Equipo
  Public Nombre, Memoria
  Private blnEncendido
  Public Property Get Encendido() : Encendido = blnEncendido : End Property
  Public Property Let Encendido (b) : blnEncendido = CBool(b) : End Property
End Class
