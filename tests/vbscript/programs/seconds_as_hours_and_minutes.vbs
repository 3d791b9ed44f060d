Function Clock(s)
  Clock = s \ 3600 & ":" & Right("0" & (s \ 60) Mod 60, 2) & ":" & Right("0" & s Mod 60, 2)
End Function
WScript.Echo Clock(0) '> 0:00:00
WScript.Echo Clock(59) '> 0:00:59
WScript.Echo Clock(3661) '> 1:01:01
WScript.Echo Clock(100000) '> 27:46:40
