Option Explicit
Execute "Dim nueva : nueva = 5"
WScript.Echo Eval("nueva") '> 5
