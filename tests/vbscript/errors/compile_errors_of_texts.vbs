' What Execute answers to texts that do not compile, and 0 to their neighbours that do.
Function Number(text)
  On Error Resume Next
  ExecuteGlobal Replace(text, "/", vbLf)
  Number = Err.Number
End Function

' A procedure inside a block begins anew: the loops around it are not its own, and they go on behind it.
WScript.Echo Number("If False Then/Do/Sub A1/Exit Do/End Sub/Loop/End If"), Number("If False Then/Do/Sub A2/End Sub/Exit Do/Loop/End If") '> 1039 0
WScript.Echo Number("If False Then/For n = 1 To 2/Sub A3/Exit For/End Sub/Next/End If"), Number("If False Then/For n = 1 To 2/Sub A4/End Sub/Exit For/Next/End If") '> 1039 0
WScript.Echo Number("For n = 1 To 2/Sub A5/For n = 1 To 3/Next/End Sub/Next"), Number("For n = 1 To 2/Sub A6/End Sub/For n = 1 To 3/Next/Next") '> 0 1040
WScript.Echo Number("If False Then/Sub A7/Exit Sub/End Sub/Exit Sub/End If"), Number("If False Then/Function A8/Exit Function/End Function/Exit Function/End If") '> 1039 1039
WScript.Echo Number("With Err/Sub A9/.Clear/End Sub/.Clear/End With"), Number("A9") '> 0 505

' Exit of everything else.
WScript.Echo Number("Exit"), Number("Do/Exit While/Loop"), Number("Do/Exit/Loop"), Number("Do/Exit For/Loop"), Number("For n = 1 To 2/Exit Do/Next") '> 1039 1039 1039 1039 1039
WScript.Echo Number("Do/For n = 1 To 2/Exit Do/Next/Loop"), Number("For n = 1 To 2/Do/Exit For/Loop/Next"), Number("For Each n In Array()/Do/Exit For/Loop/Next") '> 0 0 0

' On Error.
WScript.Echo Number("On Error Resume"), Number("On Error Resume Now"), Number("On Error"), Number("On Resume Next"), Number("On Error GoTo 1"), Number("On Error GoTo 0") '> 1020 1020 1002 1002 1002 0

' ReDim and Erase.
WScript.Echo Number("ReDim"), Number("ReDim Preserve"), Number("ReDim b1()"), Number("ReDim b2"), Number("ReDim b3(1), b4"), Number("ReDim b5(1), b6(2)"), Number("ReDim Preserve b5(3)") '> 1010 1010 1005 1005 1005 0 0

' Names that cannot be repeated, and names that can.
WScript.Echo Number("Sub C1(a, B, A)/End Sub"), Number("Sub C2(a)/Dim A/End Sub"), Number("Sub C3(a)/Const A = 1/End Sub"), Number("Sub C4/Dim a/End Sub/Sub C5/Dim a/End Sub") '> 1041 1041 1041 0
WScript.Echo Number("Class C6/Dim a/Sub A/End Sub/End Class"), Number("Class C7/Dim a, b, A/End Class"), Number("Class C8/Dim a/Sub S(a)/Dim b/End Sub/End Class") '> 1041 1041 0
WScript.Echo Number("Class C9/Property Get P/End Property/Property Set P(v)/End Property/Property Let P(v)/End Property/End Class") '> 0
WScript.Echo Number("Class C10/Property Get P(i)/End Property/Property Set P(i, v)/End Property/Property Let P(v)/End Property/End Class") '> 1051
WScript.Echo Number("Class C11/Property Set P(v)/End Property/Property Set P(v)/End Property/End Class"), Number("Class C12/Function F/End Function/Property Set F(v)/End Property/End Class") '> 1041 0

' Defaults.
WScript.Echo Number("Class D1/Public Default Property Set P(v)/End Property/End Class"), Number("Class D2/Default Property Get P/End Property/End Class"), Number("Class D3/Public Default Sub S/End Sub/End Class") '> 1058 1057 0
WScript.Echo Number("Class D4/Public Default/End Class"), Number("Class D5/Private Property, Default/End Class"), Number("Class D6/Public Default(2), Property/End Class") '> 0 0 0

' What a class takes, and how it ends.
WScript.Echo Number("Class E1/Sub Class_Initialize(a)/End Sub/End Class"), Number("Class E2/Sub Class_Terminate/End Sub/End Class"), Number("Class E3/Property Let P/End Property/End Class") '> 1053 0 1054
WScript.Echo Number("Class E4/End Sub"), Number("Class E5"), Number("Class E6/Sub S/End Class"), Number("Class"), Number("Class E7 Dim a/End Class") '> 1047 1014 1016 1010 1025
