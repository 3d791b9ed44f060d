Class C
  Sub P
  End Sub
  Property Get P '! 1041
  End Property
End Class
