' What hangs on a chain of dictionaries, or of arrays and dictionaries by turns, ends with its first link.
Class Last
    Public Name
    Private Sub Class_Terminate
        WScript.Echo "end of", Name
    End Sub
End Class
Function Hung(name, links, both)
    Dim i, link, inner
    Set inner = New Last
    inner.Name = name
    For i = 1 To links
        Set link = CreateObject("Scripting.Dictionary")
        If both Then link.Add "a", Array(i, inner, i) Else link.Add "d", inner
        link.Add "other", CreateObject("Scripting.Dictionary")
        Set inner = link
    Next
    Set Hung = inner
End Function
For Each links In Array(1, 39, 40, 41, 42, 80, 81, 5000)
    Set chain = Hung(links, links, False)
    Set chain = Nothing
    WScript.Echo "after", links
    Set chain = Hung(-links, links, True)
    chain.RemoveAll
    WScript.Echo "after", -links
Next
'> end of 1
'> after 1
'> end of -1
'> after -1
'> end of 39
'> after 39
'> end of -39
'> after -39
'> end of 40
'> after 40
'> end of -40
'> after -40
'> end of 41
'> after 41
'> end of -41
'> after -41
'> end of 42
'> after 42
'> end of -42
'> after -42
'> end of 80
'> after 80
'> end of -80
'> after -80
'> end of 81
'> after 81
'> end of -81
'> after -81
'> end of 5000
'> after 5000
'> end of -5000
'> after -5000
