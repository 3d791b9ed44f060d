Class C
  Public f
  Public Default Function A
  End Function
  Public Default Function B '! 1052
  End Function
End Class
