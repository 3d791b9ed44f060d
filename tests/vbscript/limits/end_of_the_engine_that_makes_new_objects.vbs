' The last act of each object makes two new ones, in cycles and in names that are already given up.
Class Endless
    Public other

    Private Sub Class_Terminate
        Set one = New Endless
        Set two = New Endless
        Set two.other = one
        Set one.other = two
        ExecuteGlobal "Set fresh" & made & " = New Endless"
        made = made + 1
    End Sub
End Class

Dim one, two, made
Set one = New Endless
Set one.other = New Endless
WScript.Echo TypeName(one.other) '> Endless
