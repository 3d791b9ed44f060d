WScript.Echo DateValue("15/03/2021") '> 15/03/2021
WScript.Echo DateValue("15/03/2021 10:20:30") '> 15/03/2021
WScript.Echo TypeName(DateValue("15/03/2021")) '> Date
