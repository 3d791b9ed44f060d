' As web pages build their text: a class with a growing array, Me returned for chains, a default property with index.
Class Constructor
  Private partes(), n
  Private Sub Class_Initialize() : n = 0 : ReDim partes(-1) : End Sub
  Public Function Agrega(ByVal s)
    ReDim Preserve partes(UBound(partes) + 1)
    partes(UBound(partes)) = s : n = n + 1
    Set Agrega = Me
  End Function
  Public Default Property Get Parte(i) : If i < n Then Parte = partes(i) Else Parte = "?" End If : End Property
  Public Property Let Parte(i, v) : partes(i) = v : End Property
  Public Function ToString() ToString = Join(partes, "") End Function
End Class
Dim sb : Set sb = New Constructor : sb.Agrega("<ul>").Agrega "<li>uno</li>"
sb.Agrega ("<li>dos</li>").Agrega "</ul>"
WScript.Echo sb.ToString '> <ul><li>uno</li><li>dos</li></ul>
WScript.Echo sb(1), sb(9) '> <li>uno</li> ?
sb(1) = "<li>UNO</li>"
WScript.Echo sb.ToString() '> <ul><li>UNO</li><li>dos</li></ul>
If Len(sb.ToString) > 10 Then WScript.Echo "largo" : Else WScript.Echo "corto"
'> largo
Dim manejadores : Set manejadores = CreateObject("Scripting.Dictionary")
Set manejadores("clic") = GetRef("AlPulsar")
manejadores("clic")("botón") '> pulsado botón
Dim f : Set f = manejadores.Item("clic") : f "enlace" '> pulsado enlace
Call f("fin") '> pulsado fin
Sub AlPulsar(que)
WScript.Echo "pulsado " & que
End Sub
