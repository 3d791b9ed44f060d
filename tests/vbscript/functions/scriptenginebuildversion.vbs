WScript.Echo IsNumeric(ScriptEngineBuildVersion), ScriptEngineBuildVersion() >= 0 '> True True
