Dim x As Integer '! 1025
