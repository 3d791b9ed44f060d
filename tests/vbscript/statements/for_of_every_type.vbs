' The counter of For: its types, its failing headers, what it is afterwards.
On Error Resume Next
v = 9: For v = 1 To "x": WScript.Echo "b", v: Next: WScript.Echo v, Err.Number: Err.Clear
'> b 9
'> 9 92
v = 9: For v = "x" To 3: WScript.Echo "b", v: Next: WScript.Echo v, Err.Number: Err.Clear
'> b 9
'> 9 92
v = 9: For v = 1 To 3 Step "s": WScript.Echo "b", v: Next: WScript.Echo v, Err.Number: Err.Clear
'> b 9
'> 9 92
v = 9: For v = 1 To Null: WScript.Echo "b", v: Next: WScript.Echo v, Err.Number: Err.Clear
'> b 9
'> 9 92
For v = True To False: WScript.Echo v, TypeName(v): Next: WScript.Echo v
'> True Boolean
'> 0 Integer
'> 1
For v = #1/1/2020# To #1/3/2020#: WScript.Echo v: Next
'> 01/01/2020
'> 02/01/2020
'> 03/01/2020
For v = CByte(254) To 255: WScript.Echo v, TypeName(v): Next: WScript.Echo v, TypeName(v)
'> 254 Byte
'> 255 Integer
'> 256 Integer
For v = 32766 To 32767: Next: WScript.Echo v, TypeName(v) '> 32768 Long
For v = 1 To 2 Step 0.5: WScript.Echo v: Next
'> 1
'> 1,5
'> 2
For v = 3 To 1 Step -1: WScript.Echo v: Next: WScript.Echo v
'> 3
'> 2
'> 1
'> 0
For v = 0.1 To 0.5 Step 0.1: n = n + 1: Next: WScript.Echo n '> 5
For v = CCur(1) To 2: WScript.Echo TypeName(v): Next
'> Currency
'> Currency
For v = Empty To 1: WScript.Echo v, TypeName(v): Next
'> 0 Integer
'> 1 Integer
For Each x In "abc": WScript.Echo "b": Next: WScript.Echo Err.Number: Err.Clear
'> b
'> 451
For Each x In Null: WScript.Echo "b": Next: WScript.Echo Err.Number: Err.Clear
'> b
'> 451
For Each x In Empty: WScript.Echo "b": Next: WScript.Echo Err.Number: Err.Clear
'> b
'> 451
For Each x In New RegExp: WScript.Echo "b": Next: WScript.Echo Err.Number: Err.Clear
'> b
'> 451
For Each x In 1 / 0: WScript.Echo "b": Next: WScript.Echo Err.Number: Err.Clear
'> b
'> 11
For Each x In Array(): WScript.Echo "b": Next: WScript.Echo Err.Number '> 0
For Each x In Array(1, 2): Next: WScript.Echo x '> 2
