For Each p In Split("uno,dos", ",")
  WScript.Echo p
Next
'> uno
'> dos
