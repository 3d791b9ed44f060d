WScript.Echo IsNull(Null + 1), IsNull(1 - Null), IsNull(Null * 0), IsNull(Null ^ 0) '> True True True True
WScript.Echo IsNull(-Null), IsNull(1 \ Null), IsNull(Null Mod 2) '> True True True
WScript.Echo Null & "x", IsNull(Null + "x") '> x True
