With New RegExp
  v = . '! 1010
End With
