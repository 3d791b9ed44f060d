' Code that was compiled while a name was a variable goes on when a text makes it a procedure: its value can no longer
' be read, neither by its name nor through a parameter, and what is written over the procedure takes its place.
Dim d, k, fields(1)
Set d = CreateObject("Scripting.Dictionary")

Sub tried(ByVal what)
    WScript.Echo what, Err.Number
    Err.Clear
End Sub

Sub kept(ByVal q)
    k = q
End Sub

Sub readThrough(p)
    ExecuteGlobal "Sub x : WScript.Echo ""one"" : End Sub"
    On Error Resume Next
    k = p : tried "Let"                     '> Let 13
    Set k = p : tried "Set"                 '> Set 13
    k = Array(p) : tried "Array"            '> Array 13
    k = Array(1, p) : tried "Array of two"  '> Array of two 13
    d.Add "k", p : tried "Add"              '> Add 13
    d("k") = p : tried "item"               '> item 13
    k = d(p) : tried "key"                  '> key 13
    fields(0) = p : tried "element"         '> element 13
    fields(p) = 1 : tried "index"           '> index 13
    kept p : tried "ByVal"                  '> ByVal 13
    k = TypeName(p) : tried "TypeName"      '> TypeName 13
    k = p & "" : tried "text"               '> text 13
    k = -p : tried "number"                 '> number 13
    For Each k In p : Next : tried "For Each" '> For Each 13
    WScript.Echo d.Count, TypeName(k), TypeName(fields(0)) '> 0 Empty Empty
End Sub

x = 1
readThrough x
Me.x                                        '> one
On Error Resume Next
k = x : tried "the name"                    '> the name 13
k = Array(x) : tried "in an array"          '> in an array 13
k = d(x) : tried "as a key"                 '> as a key 13
kept x : tried "as an argument"             '> as an argument 13
x = 5
WScript.Echo x                              '> 5
Me.x : tried "as a member"                  '> as a member 0
WScript.Echo Me.x                           '> 5
