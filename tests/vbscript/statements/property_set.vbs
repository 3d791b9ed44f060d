Class C
  Private hijo
  Public Property Set Vastago(o)
    Set hijo = o
  End Property
  Public Property Get Vastago
    Set Vastago = hijo
  End Property
End Class
Set a = New C
Set a.Vastago = CreateObject("Scripting.Dictionary")
a.Vastago.Add "k", 1
WScript.Echo a.Vastago.Count '> 1
