Dim m(2, 3)
m(2, 3) = "último"
m(0, 0) = "primero"
WScript.Echo m(2, 3), m(0, 0), UBound(m, 1), UBound(m, 2) '> último primero 2 3
