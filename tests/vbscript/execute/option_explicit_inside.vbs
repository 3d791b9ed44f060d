Execute "Option Explicit : Dim a : a = 1"
otra = 5
WScript.Echo otra '> 5
