Rem una línea entera
x = 1 : Rem después de dos puntos
WScript.Echo x ' y un apóstrofo
'> 1
rem en minúsculas
