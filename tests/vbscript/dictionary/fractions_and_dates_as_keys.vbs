Set d = CreateObject("Scripting.Dictionary")
d(1.5) = "a"
d(#1/2/1900#) = "b"
WScript.Echo d(CCur(1.5)), d(CSng(1.5)), d(3), d.Count '> a a b 2
