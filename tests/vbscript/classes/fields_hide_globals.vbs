v = "global"
Class K
  Private v
  Public Function Da
    v = "campo"
    Da = v
  End Function
End Class
Set o = New K
WScript.Echo o.Da, v '> campo global
