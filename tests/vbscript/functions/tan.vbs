WScript.Echo Tan(0), Tan(1) '> 0 1,5574077246549
