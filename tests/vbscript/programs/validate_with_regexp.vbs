Function Matches(pattern, s)
  With New RegExp
    .Pattern = pattern
    .IgnoreCase = True
    Matches = .Test(s)
  End With
End Function
mail = "^[\w.+-]+@[\w-]+(\.[\w-]+)+$"
WScript.Echo Matches(mail, "a.b@example.com"), Matches(mail, "a@b"), Matches(mail, "@x.y") '> True False False
ip = "^((25[0-5]|2[0-4]\d|1?\d?\d)(\.(?!$)|$)){4}$"
WScript.Echo Matches(ip, "192.168.0.255"), Matches(ip, "192.168.0.256"), Matches(ip, "1.2.3") '> True False False
WScript.Echo Matches("^[0-9a-f]{4}$", "BEEF"), Matches("^[0-9a-f]{4}$", "BEEFS") '> True False
