WScript.Echo CDbl(#1/31/2020#), CDbl(#12/30/1899#), CDbl(#12/29/1899#) '> 43861 0 -1
WScript.Echo CDbl(#1/1/2000 12:00:00 PM#) '> 36526,5
