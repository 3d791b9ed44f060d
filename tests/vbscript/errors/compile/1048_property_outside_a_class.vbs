Property Get P '! 1048
End Property
