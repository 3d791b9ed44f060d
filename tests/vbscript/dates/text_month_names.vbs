WScript.Echo CDate("25 diciembre 2020"), CDate("1 enero 2021") '> 25/12/2020 01/01/2021
