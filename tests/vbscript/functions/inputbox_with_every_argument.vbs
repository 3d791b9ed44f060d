' Up to seven arguments; where nobody answers, the default is the answer.
WScript.Echo InputBox("q", "t", "d", 1, 2, "f.chm", 3) '> d
WScript.Echo InputBox("q", , "e", 1, 2, , ) & InputBox("q", "t", 5) '> e5
On Error Resume Next
WScript.Echo InputBox("q", "t", "d", 1, 2, , 3)
WScript.Echo Err.Number '> 5
Err.Clear
WScript.Echo InputBox("q", "t", "d", "left")
WScript.Echo Err.Number '> 13
Err.Clear
WScript.Echo InputBox("q", "t", "d", 1, "top")
WScript.Echo Err.Number '> 13
Err.Clear
WScript.Echo InputBox("q", "t", "d", 1, 2, "f.chm", 3, 4)
WScript.Echo Err.Number '> 450
