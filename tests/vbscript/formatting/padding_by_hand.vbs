WScript.Echo "[" & Right(Space(6) & 42, 6) & "]" '> [    42]
WScript.Echo "[" & Left("ab" & Space(6), 6) & "]" '> [ab    ]
WScript.Echo Right(String(5, "0") & 42, 5) '> 00042
