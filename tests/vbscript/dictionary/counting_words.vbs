Set d = CreateObject("Scripting.Dictionary")
For Each p In Split("a b a c b a")
  d(p) = d(p) + 1
Next
WScript.Echo d("a"), d("b"), d("c") '> 3 2 1
