Class C
  Public [Next]
  Public [End]
End Class
Set o = New C
o.Next = 1
o.End = 2
WScript.Echo o.Next + o.End '> 3
