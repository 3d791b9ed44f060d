Option Explicit
For Each v In Array(1) '! 500
Next
