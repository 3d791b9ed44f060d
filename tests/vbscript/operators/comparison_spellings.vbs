WScript.Echo 2 >= 2, 2 => 2, 2 <= 2, 2 =< 2 '> True True True True
WScript.Echo 1 <> 2, 1 >< 2 '> True True
WScript.Echo 1 => 2, 3 =< 2, 2 >< 2 '> False False False
