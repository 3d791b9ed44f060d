i = 5
For i = i - 4 To i
  s = s & i
Next
WScript.Echo s, i '> 12345 6
i = 2
For i = 10 To i * 2 Step -i
  t = t & i & " "
Next
WScript.Echo t '> 10 8 6 4
Sub P(j)
  For j = j + 1 To j + 2
    u = u & j
  Next
  WScript.Echo u, j '> 23 4
End Sub
P 1
Class C
  Private k
  Sub Q
    k = 3
    For k = 1 To k
      m = m & k
    Next
    WScript.Echo m, k '> 123 4
  End Sub
End Class
Set o = New C
o.Q
Set i = o
For i = 1 To 2
Next
WScript.Echo i '> 3
