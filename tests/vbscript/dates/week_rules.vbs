' 1 January 2021 is a Friday: the week belongs to 2020 unless every first week counts.
d = #1/1/2021#
WScript.Echo DatePart("ww", d, vbMonday, vbFirstJan1), DatePart("ww", d, vbMonday, vbFirstFourDays), DatePart("ww", d, vbMonday, vbFirstFullWeek) '> 1 53 52
' 31 December 2018 is a Monday of the week with four days of 2019.
d = #12/31/2018#
WScript.Echo DatePart("ww", d, vbMonday, vbFirstJan1), DatePart("ww", d, vbMonday, vbFirstFourDays), DatePart("ww", d, vbMonday, vbFirstFullWeek) '> 53 1 53
