' What is one key and what is another, and what cannot be a key.
Set d = CreateObject("Scripting.Dictionary")
d.Add 1, "integer": WScript.Echo d.Exists(1), d.Exists(1.0), d.Exists(CLng(1)), d.Exists("1"), d.Exists(True), d.Exists(1.5), d(CByte(1)), d(CCur(1))
'> True True True False False False integer integer
d.Add "1", "text": d.Add 1.5, "real": d.Add Empty, "empty": d.Add "", "no text": WScript.Echo d.Count, d(Empty), d(""), d("1"), d(1.5) '> 5 empty no text text real
d.Add #1/1/2020#, "day": WScript.Echo d.Exists(#1/1/2020#), d.Count '> True 6
d.Add -1, "minus": WScript.Echo d.Exists(-1), d.Exists(True) '> True True
WScript.Echo d.Exists("a"), d.Exists("A"): d("a") = 1: WScript.Echo d.Exists("A"), d.Exists("a"): d("A") = 2: WScript.Echo d.Count, d("a"), d("A")
'> False False
'> False True
'> 9 1 2
Set o = New RegExp: d.Add o, "object": WScript.Echo d.Exists(o), d(o), d.Exists(New RegExp) '> True object False
d.Remove 1: WScript.Echo d.Exists(1), d.Exists("1"), d.Count: d.Remove o: WScript.Echo d.Exists(o), d.Count
'> False True 9
'> False 8
d.RemoveAll: WScript.Echo d.Count, UBound(d.Keys), UBound(d.Items) '> 0 -1 -1
d.CompareMode = 1: d.Add "Ñandú", 1: WScript.Echo d.Exists("ñANDÚ"), d("ÑANDÚ"), d.Keys()(0): d("ñandú") = 2: WScript.Echo d.Count, d.Keys()(0), d.Items()(0)
'> True 1 Ñandú
'> 1 Ñandú 2
On Error Resume Next
d.Add "ñandú", 3: WScript.Echo Err.Number: Err.Clear '> 457
d.Add Array(1), 3: WScript.Echo Err.Number: Err.Clear '> 5
d.Remove "none": WScript.Echo Err.Number: Err.Clear '> 32811
d.Key("none") = 1: WScript.Echo Err.Number: Err.Clear '> 32811
d.CompareMode = 0: WScript.Echo Err.Number: Err.Clear '> 5
d.Add: WScript.Echo Err.Number: Err.Clear '> 450
d.Add 1: WScript.Echo Err.Number: Err.Clear '> 450
x = d.Item: WScript.Echo Err.Number: Err.Clear '> 450
d.Nope: WScript.Echo Err.Number: Err.Clear '> 438
x = d.Exists: WScript.Echo Err.Number: Err.Clear '> 450
d.Count = 5: WScript.Echo Err.Number: Err.Clear '> 438
