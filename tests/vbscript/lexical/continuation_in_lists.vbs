a = Array("uno", _
          "dos", _
          "tres")
WScript.Echo Join(a, _
  ",")
'> uno,dos,tres
