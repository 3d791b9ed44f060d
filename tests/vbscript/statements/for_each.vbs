For Each v In Array("a", "b", "c")
  s = s & v & ";"
Next
WScript.Echo s '> a;b;c;
