' A comparison a line: texts, truth values, numbers, arrays, Empty and Null on either side.
'after ../expressions.inc
n7 = 7 : s7 = "7" : b1 = True
X """tRUE"" = True" '> Boolean False
X """True"" = True" '> Boolean True
X "True = ""True""" '> Boolean True
X """True"" = b1" '> Boolean True
X "b1 = ""true""" '> Boolean False
X """-1"" = True" '> Boolean False
X """False"" = False" '> Boolean True
X """0"" = False" '> Boolean False
X """"" = False" '> Boolean False
X """truth"" <> False" '> Boolean True
X """truth"" > False" '> Boolean True
X """True "" = True" '> Boolean False
X """a"" < True" '> Boolean False
X """A"" < True" '> Boolean True
X """7a"" = 7" '> error 13
X """7a"" <> 7" '> error 13
X """7a"" < 7" '> error 13
X "7 > ""x""" '> error 13
X """007"" = 7" '> Boolean True
X """007"" = n7" '> Boolean False
X """7"" = n7" '> Boolean True
X "n7 = ""007""" '> Boolean False
X "s7 = 7" '> Boolean True
X "s7 = n7" '> Boolean True
X """7a"" = -7" '> Boolean False
X """-7"" = -7" '> Boolean True
X """-07"" = -7" '> Boolean False
X """10"" > 9" '> Boolean True
X """10"" > n7" '> Boolean False
X """10"" > 9 + 0" '> Boolean False
X """7"" = CInt(7)" '> Boolean True
X """07"" = CInt(7)" '> Boolean False
X """07"" = (7)" '> Boolean True
X "#1/2/2020# = ""1/2/2020""" '> Boolean True
X "(Array(8) <> Null)" '> error 13
X "(Null = Array(8))" '> error 13
X "Array(1) = Array(1)" '> error 13
X "Array(1) > 1" '> error 13
X "Empty = Array(1)" '> error 13
X "Array(1) = Nothing" '> error 13
X "CSng(0.7) = 0.7" '> Boolean True
X "0.7 = CSng(0.7)" '> Boolean True
X "CSng(0.1) < 0.1" '> Boolean False
X "CSng(0.1) <> 0.1" '> Boolean False
X "CSng(0.1) >= 0.1" '> Boolean True
X "Empty = """"" '> Boolean True
X "Empty = 0" '> Boolean True
X "Empty = False" '> Boolean True
X "Empty = Null" '> Null
X "Null = Null" '> Null
X "Nothing Is Nothing" '> Boolean True
X "1 Is 1" '> error 424
