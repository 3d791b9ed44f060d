Class K
  Public hijo
End Class
Set a = New K
Set a.hijo = New K
Set a.hijo.hijo = New K
a.hijo.hijo.hijo = "nieto"
WScript.Echo a.hijo.hijo.hijo '> nieto
