' DatePart("ww", date, first day, rule) around new year: 1 the week of 1 January, 2 four days, 3 the first whole week.
For Each d In Array(#1/1/2015#, #12/31/2014#, #1/4/2015#, #1/5/2015#, #12/28/2015#, #1/1/2016#, #1/1/2017#, #12/31/2018#, #1/1/2023#)
  WScript.Echo d, DatePart("ww", d), DatePart("ww", d, 2), DatePart("ww", d, 2, 2), DatePart("ww", d, 1, 2), DatePart("ww", d, 2, 3), DatePart("ww", d, 1, 3), DatePart("ww", d, 0, 0)
Next
'> 01/01/2015 1 1 1 53 52 52 1
'> 31/12/2014 53 53 1 53 52 52 53
'> 04/01/2015 2 1 1 1 52 1 1
'> 05/01/2015 2 2 2 1 1 1 2
'> 28/12/2015 53 53 53 52 52 52 53
'> 01/01/2016 1 1 53 52 52 52 1
'> 01/01/2017 1 1 52 1 52 1 1
'> 31/12/2018 53 53 1 1 53 52 53
'> 01/01/2023 1 1 52 1 52 1 1
WScript.Echo DateDiff("ww", #1/3/2015#, #1/4/2015#), DateDiff("ww", #1/3/2015#, #1/4/2015#, 2), DateDiff("ww", #1/4/2015#, #1/5/2015#, 2), DateDiff("w", #1/1/2015#, #1/8/2015#), DateDiff("w", #1/1/2015#, #1/7/2015#) '> 1 0 1 1 0
WScript.Echo DateDiff("q", #3/31/2015#, #4/1/2015#), DateDiff("q", #12/31/2014#, #1/1/2015#), DatePart("q", #3/31/2015#), DatePart("q", #4/1/2015#), DatePart("y", #12/31/2016#), DatePart("w", #1/4/2015#), DatePart("w", #1/4/2015#, 2) '> 1 1 1 2 366 1 7
