Class StringBuilder
  Private parts(), n
  Private Sub Class_Initialize : ReDim parts(3) : End Sub
  Public Function Append(s)
    If n > UBound(parts) Then ReDim Preserve parts(UBound(parts) * 2 + 1)
    parts(n) = s : n = n + 1
    Set Append = Me
  End Function
  Public Function ToString
    If n = 0 Then ToString = "" : Exit Function
    ReDim Preserve parts(n - 1)
    ToString = Join(parts, "")
  End Function
End Class
Set sb = New StringBuilder
sb.Append("a").Append(1).Append(True).Append("z")
WScript.Echo sb.ToString '> a1Truez
Set sb = New StringBuilder
For i = 1 To 100 : sb.Append i & ";" : Next
WScript.Echo Len(sb.ToString) '> 292
WScript.Echo Right(sb.ToString, 8) '> ;99;100;
