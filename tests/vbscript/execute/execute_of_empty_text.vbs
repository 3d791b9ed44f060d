Execute ""
ExecuteGlobal "  "
WScript.Echo "fin" '> fin
