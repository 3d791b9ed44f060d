WScript.Echo &O10, &o777, &O10& '> 8 511 8
WScript.Echo TypeName(&O10), TypeName(&O10&), TypeName(&O177777&), TypeName(&100000&) '> Integer Integer Long Long
WScript.Echo &O37777777777&, TypeName(&O37777777777&) '> -1 Integer
