WScript.Echo ScriptEngineMinorVersion() >= 0 '> True
