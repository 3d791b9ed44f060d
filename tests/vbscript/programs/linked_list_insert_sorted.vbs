Class Node
  Public Value, NextNode
End Class
Class SortedList
  Private head, n
  Private Sub Class_Initialize : Set head = Nothing : End Sub
  Public Property Get Count : Count = n : End Property
  Public Sub Insert(v)
    Dim fresh, at
    Set fresh = New Node
    fresh.Value = v
    n = n + 1
    If head Is Nothing Then
      Set fresh.NextNode = Nothing : Set head = fresh : Exit Sub
    End If
    If v < head.Value Then
      Set fresh.NextNode = head : Set head = fresh : Exit Sub
    End If
    Set at = head
    Do Until at.NextNode Is Nothing
      If v < at.NextNode.Value Then Exit Do
      Set at = at.NextNode
    Loop
    Set fresh.NextNode = at.NextNode
    Set at.NextNode = fresh
  End Sub
  Public Function Text
    Dim at : Set at = head
    While Not at Is Nothing
      If Text <> "" Then Text = Text & ","
      Text = Text & at.Value
      Set at = at.NextNode
    Wend
  End Function
End Class
Set l = New SortedList
For Each v In Array(5, 1, 4, 1, 9, 2, 6) : l.Insert v : Next
WScript.Echo l.Count, l.Text '> 7 1,1,2,4,5,6,9
