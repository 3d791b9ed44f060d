' The text that is run does not inherit it.
Option Explicit
Execute "sinDeclarar = 5"
WScript.Echo Eval("sinDeclarar") '> 5
