WScript.Echo ScriptEngineMajorVersion() >= 5 '> True
