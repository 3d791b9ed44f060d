Set d = CreateObject("Scripting.Dictionary")
For i = 1 To 10000
  d.Add "clave" & i, i
Next
For i = 1 To 10000 Step 2
  d.Remove "clave" & i
Next
WScript.Echo d.Count, d("clave5000"), d.Exists("clave4999") '> 5000 5000 False
