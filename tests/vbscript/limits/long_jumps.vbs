' Conditions and loops over more instructions than a short jump reaches.
Function Lines(count)
  Dim list(), i
  ReDim list(count - 1)
  For i = 0 To count - 1
    list(i) = "s = s + 1"
  Next
  Lines = Join(list, vbLf)
End Function
Dim body
body = Lines(40000)
ExecuteGlobal "Sub Skip(n)" & vbLf & "Dim s" & vbLf & "s = 0" & vbLf & "If n = 5 Then" & vbLf & body & vbLf & _
              "Else" & vbLf & "s = -1" & vbLf & "End If" & vbLf & "WScript.Echo s" & vbLf & "End Sub"
Skip 5 '> 40000
Skip 6 '> -1
ExecuteGlobal "Sub Again(n)" & vbLf & "Dim s, i" & vbLf & "s = 0" & vbLf & "i = 0" & vbLf & "Do While i < 2" & vbLf & _
              body & vbLf & "i = i + 1" & vbLf & "Loop" & vbLf & "For i = 1 To 2" & vbLf & body & vbLf & "Next" & _
              vbLf & "WScript.Echo s" & vbLf & "End Sub"
Again 1 '> 160000
