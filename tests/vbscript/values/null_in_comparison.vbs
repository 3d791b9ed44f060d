WScript.Echo IsNull(Null = Null), IsNull(Null = 1), IsNull(Null < "a"), IsNull(Null <> Null) '> True True True True
If Null = Null Then WScript.Echo "nunca" Else WScript.Echo "ni igual" '> ni igual
If Null <> Null Then WScript.Echo "nunca" Else WScript.Echo "ni distinto" '> ni distinto
