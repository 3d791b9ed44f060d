WScript.Echo &O10, &o777, &O10& '> 8 511 8
WScript.Echo TypeName(&O10), TypeName(&O10&) '> Integer Long
