Set d = CreateObject("Scripting.Dictionary")
d("a") = 1 : d("b") = 2 : d("c") = 3
For i = 1 To 1000
  d.Key("b") = "otra"
  d.Key("otra") = "b"
Next
d.Key("b") = "z"
WScript.Echo Join(d.Keys, ""), d("z"), d.Count '> azc 2 3
