Class K
  Public v
  Private v '! 1041
End Class
