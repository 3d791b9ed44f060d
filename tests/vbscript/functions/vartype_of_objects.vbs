' An object with a default value has the type of that value.
Class Caja
  Public Default Property Get Valor
    Valor = "texto"
  End Property
End Class
Class Otra
End Class
WScript.Echo VarType(New Caja), VarType(New Otra) '> 8 9
WScript.Echo VarType(CreateObject("Scripting.Dictionary")) '> 9
