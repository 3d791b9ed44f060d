' Through Me a public variable that holds no array is indexed no more than from outside.
Class C
  Public size
  Public list(2)
  Public later
  Private inner
  Sub T
    size = 9
    inner = Array(4, 5)
    later = Array(6, 7)
    On Error Resume Next
    x = Me.size(2) : Told '> 438
    Me.size(2) = 1 : Told '> 438
    x = Me.size("w") : Told '> 438
    Me.size("w") = 1 : Told '> 438
    x = Me.size(1, 1) : Told '> 438
    Set Me.size(1) = Me : Told '> 438
    Me.size 2 : Told '> 438
    Call Me.size(2) : Told '> 438
    Me.size : Told '> 0
    x = Me.size() : Told '> 5
    Me.size() = 4 : Told '> 0
    x = Me.list() : Told '> 5
    Me.list(1) = 3 : Told '> 0
    Me.list(3) = 3 : Told '> 9
    Me.later(0) = 8 : Told '> 0
    WScript.Echo size, Me.size, Me.list(1), Me.later(0), Me.later(1), Me.inner(1) '> 4 4 3 8 7 5
    x = size(2) : Told '> 13
    size(2) = 1 : Told '> 13
  End Sub
End Class
Sub Told
  WScript.Echo Err.Number
  Err.Clear
End Sub
Set o = New C
o.T
