WScript.Echo Log(1), Log(10) '> 0 2,30258509299405
WScript.Echo Round(Log(1000) / Log(10), 10) '> 3
