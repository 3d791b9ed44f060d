WScript.Echo DateAdd("m", 1, #1/31/2021#), DateAdd("m", -1, #3/31/2021#) '> 28/02/2021 28/02/2021
WScript.Echo DateAdd("yyyy", 1, #2/29/2020#), DateAdd("yyyy", 4, #2/29/2020#) '> 28/02/2021 29/02/2024
WScript.Echo DateAdd("m", 13, #1/31/2020#), DateAdd("q", -1, #5/31/2020#) '> 28/02/2021 29/02/2020
