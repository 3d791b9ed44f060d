Function Scan(text)
  Dim i, c, digits, letters, others
  digits = 0
  letters = 0
  others = 0
  For i = 1 To Len(text)
    c = Asc(Mid(text, i, 1))
    If c >= 48 And c <= 57 Then
      digits = digits + 1
    ElseIf c >= 97 And c <= 122 Then
      letters = letters + 1
    Else
      others = others + 1
    End If
  Next
  Scan = digits * 3 + letters * 2 + others
End Function
Function CountWord(text, word)
  Dim place, count
  count = 0
  place = InStr(1, text, word)
  Do While place > 0
    count = count + 1
    place = InStr(place + Len(word), text, word)
  Loop
  CountWord = count
End Function
Dim text, i
For i = 1 To 2000
  text = text & "la linea " & i & " del texto; "
Next
Dim total
For i = 1 To 40
  total = total + Scan(text) + CountWord(text, "linea")
Next
WScript.Echo total
