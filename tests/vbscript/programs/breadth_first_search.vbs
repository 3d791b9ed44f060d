Set g = CreateObject("Scripting.Dictionary")
g.Add "A", Array("B", "C")
g.Add "B", Array("D")
g.Add "C", Array("D", "E")
g.Add "D", Array("F")
g.Add "E", Array("F")
g.Add "F", Array()
Function Distance(from, goal)
  Dim seen, queue(100), head, tail, at, n
  Set seen = CreateObject("Scripting.Dictionary")
  queue(0) = from : tail = 1 : seen.Add from, 0
  Do While head < tail
    at = queue(head) : head = head + 1
    If at = goal Then Distance = seen(at) : Exit Function
    For Each n In g(at)
      If Not seen.Exists(n) Then
        seen.Add n, seen(at) + 1
        queue(tail) = n : tail = tail + 1
      End If
    Next
  Loop
  Distance = -1
End Function
WScript.Echo Distance("A", "F") '> 3
WScript.Echo Distance("A", "E") '> 2
WScript.Echo Distance("F", "A") '> -1
WScript.Echo Distance("C", "C") '> 0
