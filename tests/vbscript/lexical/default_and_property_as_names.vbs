' Default and Property are words only before what they belong to; elsewhere they are names.
Class Holder
    Public Default, Size
    Private Property
    Public Step(2), Explicit
    Public Sub Keep(v)
        Property = v
    End Sub
    Public Function Kept
        Kept = Property
    End Function
End Class
Class Other
    Public Default ' a comment may follow
    Public Property: Public Error
End Class
Public Default
Private Property, Step
Set h = New Holder
h.Default = 1: h.Size = 2: h.Step(1) = 3: h.Keep 4
WScript.Echo h.Default, h.Size, h.Step(1), h.Kept '> 1 2 3 4
Set o = New Other
o.Default = 5: o.Property = 6: o.Error = 7
WScript.Echo o.Default, o.Property, o.Error '> 5 6 7
Default = 8: Property = 9: Step = 10
WScript.Echo Default, Property, Step '> 8 9 10
Class Answering
    Public Default Property Get Property
        Property = "default"
    End Property
End Class
WScript.Echo New Answering '> default
