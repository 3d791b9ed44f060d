Class Animal
  Public Name
  Public Function Speak : Speak = Name & " makes a noise" : End Function
End Class
Class Dog
  Private base
  Private Sub Class_Initialize : Set base = New Animal : End Sub
  Public Property Let Name(v) : base.Name = v : End Property
  Public Property Get Name : Name = base.Name : End Property
  Public Function Speak : Speak = base.Speak & ": woof" : End Function
End Class
Dim a(1)
Set a(0) = New Animal : a(0).Name = "Cat"
Set a(1) = New Dog : a(1).Name = "Rex"
For Each x In a
  WScript.Echo TypeName(x), x.Speak
Next
'> Animal Cat makes a noise
'> Dog Rex makes a noise: woof
