' Without a debugger it does nothing.
Stop
WScript.Echo "sigue" '> sigue
