Class Node
  Public Key, Left, Right
End Class
Class Tree
  Private m_root, m_count
  Private Sub Class_Initialize
    Set m_root = Nothing
    m_count = 0
  End Sub
  Public Property Get Count
    Count = m_count
  End Property
  Public Sub Insert(key)
    Dim made, at
    Set made = New Node
    made.Key = key
    Set made.Left = Nothing
    Set made.Right = Nothing
    If m_root Is Nothing Then
      Set m_root = made
      m_count = 1
      Exit Sub
    End If
    Set at = m_root
    Do
      If key = at.Key Then Exit Sub
      If key < at.Key Then
        If at.Left Is Nothing Then
          Set at.Left = made
          Exit Do
        End If
        Set at = at.Left
      Else
        If at.Right Is Nothing Then
          Set at.Right = made
          Exit Do
        End If
        Set at = at.Right
      End If
    Loop
    m_count = m_count + 1
  End Sub
  Private Function SumUnder(at, depth)
    If at Is Nothing Then
      SumUnder = 0
    Else
      SumUnder = SumUnder(at.Left, depth + 1) + SumUnder(at.Right, depth + 1) + (at.Key Mod 100) * depth
    End If
  End Function
  Public Function Sum
    Sum = SumUnder(m_root, 1)
  End Function
End Class
Sub Run
  Dim t, i, key, round
  For round = 1 To 8
    Set t = New Tree
    key = 1
    For i = 1 To 12000
      key = (key * 137 + 71) Mod 65537
      t.Insert key
    Next
    WScript.Echo t.Count, t.Sum
  Next
End Sub
Run
