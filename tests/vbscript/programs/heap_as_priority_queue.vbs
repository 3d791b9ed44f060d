Class Heap
  Private a(), n
  Public Property Get Count : Count = n : End Property
  Public Sub Push(v)
    Dim i, t
    ReDim Preserve a(n)
    a(n) = v : i = n : n = n + 1
    Do While i > 0
      If a((i - 1) \ 2) <= a(i) Then Exit Do
      t = a(i) : a(i) = a((i - 1) \ 2) : a((i - 1) \ 2) = t
      i = (i - 1) \ 2
    Loop
  End Sub
  Public Function Pop
    Dim i, c, t
    Pop = a(0)
    n = n - 1
    a(0) = a(n)
    Do
      c = 2 * i + 1
      If c >= n Then Exit Do
      If c + 1 < n Then If a(c + 1) < a(c) Then c = c + 1
      If a(i) <= a(c) Then Exit Do
      t = a(i) : a(i) = a(c) : a(c) = t
      i = c
    Loop
  End Function
End Class
Set h = New Heap
For Each v In Array(5, 3, 8, 1, 9, 2) : h.Push v : Next
Do While h.Count > 0 : s = s & h.Pop & " " : Loop
WScript.Echo Trim(s) '> 1 2 3 5 8 9
