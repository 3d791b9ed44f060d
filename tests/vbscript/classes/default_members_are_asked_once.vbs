' A default member is asked once for each use of its object, the left side before the right.
Dim asked, g
Class Told
    Public name, v
    Public Default Property Get Value
        asked = asked & name
        Value = v
    End Property
End Class
Function T(name, v)
    Set T = New Told
    T.name = name
    T.v = v
End Function
Sub Show(x)
    WScript.Echo asked, x
    asked = ""
End Sub
Show T("a", 3) + T("b", 2) '> ab 5
Show T("a", 3) & T("b", 2) '> ab 32
Show T("a", 3) & T("b", 2) & T("c", 1) '> abc 321
Show T("a", ChrB(65)) & T("b", ChrB(66)) = ChrB(65) & ChrB(66) '> ab True
Show T("a", 3) < T("b", 2) '> ab False
Show T("a", 3) And T("b", 2) '> ab 2
Show T("a", 2) ^ T("b", 3) '> ab 8
Show Round(T("a", 2.5)) '> a 2
Show Round(T("a", True)) '> a True
Show Round(T("a", 2.345), T("b", 1)) = 2.3 '> ba True
Show Abs(T("a", -1)) + Len(T("b", "xyz")) '> ab 4
Show DateSerial(T("a", 2020), T("b", 2), T("c", 3)) '> abc 03/02/2020
Show RGB(T("a", 1), T("b", 2), T("c", 3)) '> abc 197121
' What the default member assigns does not reach an operand that was read before.
Class Setter
    Public Default Property Get Value
        g = 5
        Value = 2
    End Property
End Class
Set s = New Setter
g = 1: Show g + s '>  3
g = 1: Show g & s '>  12
g = 1: Show g * s + g '>  7
