' Locals end before the caller sees the result, the object of the method last.
Class Testigo
  Public nombre
  Private Sub Class_Terminate
    WScript.Echo nombre, "ve", x
    x = "de " & nombre
  End Sub
End Class
Function con(nombre)
  Set con = New Testigo
  con.nombre = nombre
End Function
Function f
  Dim a, b
  Set a = con("a")
  Set b = con("b")
  f = "resultado"
End Function
Dim x
x = "antes"
x = f()
'> a ve antes
'> b ve de a
WScript.Echo x  '> resultado

Class Metodo
  Public Function hace
    Dim t
    Set t = con("t")
    hace = 5
  End Function
  Private Sub Class_Terminate
    WScript.Echo "el objeto ve", x
  End Sub
End Class
x = (New Metodo).hace
'> t ve resultado
'> el objeto ve 5
WScript.Echo x  '> 5

' A result that is an object and nobody takes ends at once; its default member comes first.
con "suelto"
'> suelto ve 5
Class Numero
  Public Default Property Get n
    n = 42
  End Property
  Private Sub Class_Terminate
    WScript.Echo "numero fuera"
  End Sub
End Class
Function nuevo
  Set nuevo = New Numero
End Function
x = nuevo() + 1
'> numero fuera
WScript.Echo x  '> 43
WScript.Echo nuevo(), "eco"
'> 42 eco
'> numero fuera
