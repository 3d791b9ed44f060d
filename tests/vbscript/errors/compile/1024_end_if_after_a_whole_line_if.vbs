If True Then :
x = 1
End If '! 1024
