For i = 1 To 300
  s = s & ChrW(i)
Next
WScript.Echo Unescape(Escape(s)) = s '> True
