' Keys stay in the order in which they came, whatever is removed, renamed or written over.
Set d = CreateObject("Scripting.Dictionary")
For i = 1 To 40: d.Add "k" & i, i: Next
For i = 1 To 40 Step 3: d.Remove "k" & i: Next
d("k2") = "two": d.Key("k3") = "three": d.Add "k1", "again": d("k40") = "last"
WScript.Echo d.Count, Join(d.Keys, " ") '> 28 k2 three k5 k6 k8 k9 k11 k12 k14 k15 k17 k18 k20 k21 k23 k24 k26 k27 k29 k30 k32 k33 k35 k36 k38 k39 k1 k40
WScript.Echo Join(d.Items, " ") '> two 3 5 6 8 9 11 12 14 15 17 18 20 21 23 24 26 27 29 30 32 33 35 36 38 39 again last
For Each k In d: If d(k) = "again" Then d.Remove k
Next
WScript.Echo d.Count, d.Exists("k1"), d.Exists("k3"), d.Exists("three") '> 27 False False True
s = 0: For Each v In d.Items: If IsNumeric(v) Then s = s + v
Next: WScript.Echo s '> 531
d.RemoveAll: d.Add "first", 1: d.Add "second", 2: WScript.Echo Join(d.Keys), d.Count '> first second 2
