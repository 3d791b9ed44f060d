Class Ring
  Private items(), first, n, size
  Public Default Function Init(count)
    size = count : ReDim items(size - 1) : first = 0 : n = 0
    Set Init = Me
  End Function
  Public Sub Push(v)
    items((first + n) Mod size) = v
    If n < size Then n = n + 1 Else first = (first + 1) Mod size
  End Sub
  Public Property Get Item(i) : Item = items((first + i) Mod size) : End Property
  Public Property Get Average
    Dim i
    For i = 0 To n - 1 : Average = Average + Item(i) : Next
    Average = Average / n
  End Property
End Class
Set r = (New Ring)(3)
r.Push 10 : WScript.Echo r.Average '> 10
r.Push 20 : WScript.Echo r.Average '> 15
r.Push 30 : r.Push 40
WScript.Echo r.Average, r.Item(0), r.Item(2) '> 30 20 40
