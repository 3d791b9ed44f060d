Class Caja
  Public Default Property Get Valor
    Valor = 12
  End Property
End Class
WScript.Echo IsNumeric(New Caja), IsNumeric(CreateObject("Scripting.Dictionary")) '> True False
WScript.Echo IsNumeric("1e999"), IsNumeric(Array(1)), IsNumeric(Nothing) '> False False False
