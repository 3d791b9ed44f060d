WScript.Echo Year("23/08/2020"), Weekday("23/08/2020"), DateDiff("d", "01/01/2020", "01/02/2020") '> 2020 1 31
