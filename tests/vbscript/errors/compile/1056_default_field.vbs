Class K
  Public Default v '! 1056
End Class
