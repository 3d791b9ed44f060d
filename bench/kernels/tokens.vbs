Function IsLetter(c)
  IsLetter = (c >= "a" And c <= "z") Or (c >= "A" And c <= "Z") Or c = "_"
End Function
Function IsDigit(c)
  IsDigit = c >= "0" And c <= "9"
End Function
Function Tokens(text)
  Dim i, n, c, start, names, numbers, marks, sum
  n = Len(text)
  i = 1
  names = 0
  numbers = 0
  marks = 0
  sum = 0
  Do While i <= n
    c = Mid(text, i, 1)
    If c = " " Or c = vbLf Then
      i = i + 1
    ElseIf IsLetter(c) Then
      start = i
      Do While i <= n
        c = Mid(text, i, 1)
        If Not IsLetter(c) And Not IsDigit(c) Then Exit Do
        i = i + 1
      Loop
      If Mid(text, start, i - start) = "total" Then sum = sum + 1
      names = names + 1
    ElseIf IsDigit(c) Then
      start = i
      Do While i <= n
        If Not IsDigit(Mid(text, i, 1)) Then Exit Do
        i = i + 1
      Loop
      sum = sum + CLng(Mid(text, start, i - start))
      numbers = numbers + 1
    Else
      marks = marks + 1
      i = i + 1
    End If
  Loop
  Tokens = names & " " & numbers & " " & marks & " " & sum
End Function
Dim text, i
For i = 1 To 300
  text = text & "total_" & i & " = total + " & (i * 7 Mod 1000) & " * (valor" & i & " - 12);" & vbLf
Next
For i = 1 To 25
  WScript.Echo Tokens(text)
Next
