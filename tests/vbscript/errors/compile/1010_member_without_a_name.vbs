Set o = New RegExp
o. '! 1010
