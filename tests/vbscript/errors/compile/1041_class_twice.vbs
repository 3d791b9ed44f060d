Class K
End Class
Class K '! 1041
End Class
