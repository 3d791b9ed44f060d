d = #1/31/2020#
WScript.Echo TypeName(d + 1), d + 1 '> Date 01/02/2020
WScript.Echo TypeName(d - 1), TypeName(d - #1/1/2020#), d - #1/1/2020# '> Date Double 30
WScript.Echo TypeName(d * 1) '> Double
