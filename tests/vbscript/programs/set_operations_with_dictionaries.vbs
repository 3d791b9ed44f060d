Function SetOf(list)
  Dim v
  Set SetOf = CreateObject("Scripting.Dictionary")
  For Each v In list : SetOf(v) = Empty : Next
End Function
Function Both(a, b)
  Dim k
  Set Both = CreateObject("Scripting.Dictionary")
  For Each k In a : If b.Exists(k) Then Both.Add k, Empty
  Next
End Function
Function Either(a, b)
  Dim k
  Set Either = SetOf(a.Keys)
  For Each k In b : Either(k) = Empty : Next
End Function
Set a = SetOf(Array(1, 2, 3, 4)) : Set b = SetOf(Array(3, 4, 5))
WScript.Echo Join(Both(a, b).Keys) '> 3 4
WScript.Echo Join(Either(a, b).Keys) '> 1 2 3 4 5
