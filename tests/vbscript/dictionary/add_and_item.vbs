Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Add "b", "dos"
WScript.Echo d.Item("a"), d("b"), d.Count '> 1 dos 2
