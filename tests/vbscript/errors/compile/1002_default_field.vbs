Class K : Public Default v : End Class '! 1002
