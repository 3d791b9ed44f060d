WScript.Echo "añil" '> añil
