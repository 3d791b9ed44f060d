Dim fija(2), dinamica()
fija(1) = 5
ReDim dinamica(3)
Erase fija
Erase dinamica
WScript.Echo UBound(fija), TypeName(fija(1)) '> 2 Empty
WScript.Echo UBound(dinamica) '! 9
