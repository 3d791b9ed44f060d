WScript.Echo ScriptEngine '> VBScript
WScript.Echo ScriptEngine() = "VBScript" '> True
