Function Bisiesto(a)
  Bisiesto = Day(DateSerial(a, 3, 0)) = 29
End Function
WScript.Echo Bisiesto(2000), Bisiesto(1900), Bisiesto(2020), Bisiesto(2021) '> True False True False
