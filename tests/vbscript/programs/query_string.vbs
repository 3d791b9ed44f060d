Function Parse(q)
  Dim p, kv
  Set Parse = CreateObject("Scripting.Dictionary")
  For Each p In Split(q, "&")
    kv = Split(p & "=", "=")
    Parse(Unescape(kv(0))) = Unescape(Replace(kv(1), "+", " "))
  Next
End Function
Set d = Parse("name=Ana+Gil&city=M%E1laga&empty=&flag")
WScript.Echo d.Count '> 4
WScript.Echo d("name") '> Ana Gil
WScript.Echo d("city") '> Málaga
WScript.Echo "[" & d("empty") & "][" & d("flag") & "]" '> [][]
