' &H8000 does not go into the Integers, its successor does.
WScript.Echo &H8000, TypeName(&H8000) '> -32768 Long
WScript.Echo &H8001, TypeName(&H8001) '> -32767 Integer
WScript.Echo &H7FFF, TypeName(&H7FFF) '> 32767 Integer
