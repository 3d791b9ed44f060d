Class Complex
  Public Re, Im
  Public Function Init(a, b) : Re = a : Im = b : Set Init = Me : End Function
  Public Function Times(o) : Set Times = (New Complex).Init(Re * o.Re - Im * o.Im, Re * o.Im + Im * o.Re) : End Function
  Public Default Property Get Text
    Text = Re & "+" & Im & "i"
  End Property
End Class
Set a = (New Complex).Init(1, 2)
Set b = (New Complex).Init(3, 4)
WScript.Echo a & " * " & b & " = " & a.Times(b) '> 1+2i * 3+4i = -5+10i
WScript.Echo a.Times(a).Times(a) '> -11+-2i
