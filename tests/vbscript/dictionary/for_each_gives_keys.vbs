Set d = CreateObject("Scripting.Dictionary")
d.Add "x", 10
d.Add "y", 20
For Each k In d
  WScript.Echo k & "=" & d(k)
Next
'> x=10
'> y=20
