' What was found last is remembered; whatever changes the dictionary must not be answered from memory.
Set d = CreateObject("Scripting.Dictionary")
k = "A" : x = d.Exists(k)
d.CompareMode = 1
d.Add k, 1
WScript.Echo d.Exists("a"), d.Exists(k), d("a") '> True True 1
Set d = CreateObject("Scripting.Dictionary")
k = "b" : d.Add "a", 1 : d.Add k, 2 : x = d.Exists("a") : x = d(k)
d.Key(k) = 5
WScript.Echo d.Exists(k), d.Exists(5), d(5), d.Count '> False True 2 2
Set d = CreateObject("Scripting.Dictionary")
k = "k" : d.Add "x", 0 : d.Add k, 7 : d.Remove "x" : y = d(k)
For i = 1 To 50 : d.Item(i) = i : Next
WScript.Echo d(k), d.Count, d.Keys()(0), d.Items()(50) '> 7 51 k 50
d.Remove k
WScript.Echo d.Exists(k), d.Count '> False 50
d.Add k, 9
WScript.Echo d(k), d.Keys()(50) '> 9 k
d.RemoveAll
WScript.Echo d.Exists(k), d.Count, UBound(d.Keys) '> False 0 -1
d(k) = 3 : d(k) = d(k) + 1
WScript.Echo d(k), d.Count '> 4 1
For i = 1 To 200 : d.Add "c" & i, i : Next
For i = 1 To 200 Step 2 : d.Remove "c" & i : Next
WScript.Echo d.Count, d("c2"), d.Exists("c1"), d("c200"), d.Keys()(1) '> 101 2 False 200 c2
For i = 1 To 199 Step 2 : d.Add "c" & i, -i : Next
WScript.Echo d.Count, d("c1"), d("c199"), d.Keys()(200), d.Items()(0) '> 201 -1 -199 c199 4
