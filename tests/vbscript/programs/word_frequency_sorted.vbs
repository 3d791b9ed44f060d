text = "the cat and the dog and the bird"
Set d = CreateObject("Scripting.Dictionary")
For Each w In Split(text)
  d(w) = d(w) + 1
Next
k = d.Keys
For i = 0 To UBound(k) - 1
  For j = i + 1 To UBound(k)
    If d(k(j)) > d(k(i)) Or (d(k(j)) = d(k(i)) And k(j) < k(i)) Then
      t = k(i) : k(i) = k(j) : k(j) = t
    End If
  Next
Next
For Each w In k
  WScript.Echo w & "=" & d(w)
Next
'> the=3
'> and=2
'> bird=1
'> cat=1
'> dog=1
