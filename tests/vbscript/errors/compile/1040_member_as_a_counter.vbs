Set o = New RegExp
For o.Pattern = 1 To 3 '! 1040
Next
