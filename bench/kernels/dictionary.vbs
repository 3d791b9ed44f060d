Function Fill(n)
  Dim d, i, key
  Set d = CreateObject("Scripting.Dictionary")
  For i = 1 To n
    key = "clave" & (i Mod 5000)
    If d.Exists(key) Then
      d(key) = d(key) + i
    Else
      d.Add key, i
    End If
  Next
  Fill = d.Count + d("clave17")
End Function
Dim round
For round = 1 To 10
  WScript.Echo Fill(100000)
Next
