For m = 1 To 12
  s = s & MonthName(m) & " "
Next
WScript.Echo Trim(s) '> enero febrero marzo abril mayo junio julio agosto septiembre octubre noviembre diciembre
