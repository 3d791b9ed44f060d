' A name may begin with the letters.
Remolque = 3
WScript.Echo Remolque '> 3
