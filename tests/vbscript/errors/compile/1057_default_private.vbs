Class K
  Private Default Function A '! 1057
  End Function
End Class
