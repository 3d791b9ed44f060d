Class Counter
  Private m_total
  Private m_step
  Private Sub Class_Initialize
    m_total = 0
    m_step = 1
  End Sub
  Public Sub Advance(by)
    m_total = m_total + by * m_step
  End Sub
  Public Function Plus(n)
    Plus = m_total + n
  End Function
  Public Property Get Total
    Total = m_total
  End Property
End Class
Sub Run(n)
  Dim c, i, sum
  Set c = New Counter
  sum = 0
  For i = 1 To n
    c.Advance 2
    sum = sum + c.Plus(i) Mod 7
  Next
  WScript.Echo c.Total, sum
End Sub
Run 3000000
