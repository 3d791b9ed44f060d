Function Edad(nacido, hoy)
  Edad = DateDiff("yyyy", nacido, hoy)
  If DateSerial(Year(hoy), Month(nacido), Day(nacido)) > hoy Then Edad = Edad - 1
End Function
WScript.Echo Edad(#8/23/1980#, #8/22/2020#), Edad(#8/23/1980#, #8/23/2020#) '> 39 40
