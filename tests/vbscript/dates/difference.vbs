WScript.Echo #3/1/2020# - #2/1/2020#, #3/1/2021# - #2/1/2021# '> 29 28
WScript.Echo TypeName(#3/1/2020# - #2/1/2020#) '> Double
