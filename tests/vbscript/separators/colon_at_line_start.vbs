:x = 1
   :y = 2
WScript.Echo x + y '> 3
