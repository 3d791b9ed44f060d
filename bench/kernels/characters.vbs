' What a script does that looks at a text character by character: vowels, brackets, words turned round.
Function Vowels(text)
  Dim i, c, count
  count = 0
  For i = 1 To Len(text)
    c = Mid(text, i, 1)
    If c = "a" Or c = "e" Or c = "i" Or c = "o" Or c = "u" Then count = count + 1
  Next
  Vowels = count
End Function
Function Deepest(text)
  Dim i, depth, most
  depth = 0
  most = 0
  For i = 1 To Len(text)
    Select Case Mid(text, i, 1)
      Case "("
        depth = depth + 1
        If depth > most Then most = depth
      Case ")"
        depth = depth - 1
    End Select
  Next
  Deepest = most
End Function
Function Members(text, among)
  Dim i, count
  count = 0
  For i = 1 To Len(text)
    If InStr(among, Mid(text, i, 1)) > 0 Then count = count + Asc(Mid(text, i, 1)) Mod 7
  Next
  Members = count
End Function
Function Turned(text)
  Dim i, result
  result = ""
  For i = Len(text) To 1 Step -1
    result = result & Mid(text, i, 1)
  Next
  Turned = result
End Function
Dim text, i
For i = 1 To 200
  text = text & "f(" & i & ", (g(abecedario) * 3)) "
Next
For i = 1 To 30
  WScript.Echo Vowels(text), Deepest(text), Members(text, "0123456789+-*/"), Right(Turned(text), 3)
Next
