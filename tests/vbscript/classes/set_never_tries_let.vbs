' Set asks for a Property Set alone, with indexes and from within the class as well.
On Error Resume Next
Class Table
    Public Property Get Cell(i)
        Cell = i
    End Property
    Public Property Let Cell(i, v)
        WScript.Echo "let", i, TypeName(v)
    End Property
    Public Property Let Written(i, v)
        WScript.Echo "let", i, TypeName(v)
    End Property
    Public Property Let Plain(v)
        WScript.Echo "let", TypeName(v)
    End Property
    Public Property Set Kept(i, v)
        WScript.Echo "set", i, TypeName(v)
    End Property
    Sub ByName
        Set Plain = Me
    End Sub
    Sub ByMe
        Set Me.Plain = Me
    End Sub
    Sub ByNameWithIndex
        Set Cell(1) = Me
    End Sub
    Sub LetsAll
        Plain = Me
    End Sub
    Sub SetsKept
        Set Kept(4) = Me
        Set Me.Kept(5) = Me
    End Sub
End Class
Set t = New Table
Set t.Cell(1) = t: WScript.Echo Err.Number: Err.Clear '> 438
Set t.Written(1) = t: WScript.Echo Err.Number: Err.Clear '> 438
Set t.Plain = t: WScript.Echo Err.Number: Err.Clear '> 438
Set t.Kept(1) = t '> set 1 Table
t.Cell(2) = t '> let 2 Table
t.Written(3) = t '> let 3 Table
t.ByName: WScript.Echo Err.Number: Err.Clear '> 438
t.ByMe: WScript.Echo Err.Number: Err.Clear '> 438
t.ByNameWithIndex: WScript.Echo Err.Number: Err.Clear '> 438
t.LetsAll '> let Table
t.SetsKept
'> set 4 Table
'> set 5 Table
WScript.Echo Err.Number '> 0
