Set o = New RegExp
o. 5 '! 1010
