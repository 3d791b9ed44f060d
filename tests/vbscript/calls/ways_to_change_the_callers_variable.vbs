' A parameter goes by reference, however the procedure changes it; the caller's variable is a local one.
Class Changer
  Public Function Five(v)
    v = 5
    Five = 0
  End Function
End Class
Function Five(v)
  v = 5
  Five = 0
End Function
Function FiveAndNothing(v)
  v = 5
  Set FiveAndNothing = Nothing
End Function
Sub FiveByValue(ByVal v)
  v = 5
End Sub

Sub Counts(a) : For a = 1 To 3 : Next : End Sub
Sub Walks(a) : For Each a In Array(7, 8) : Next : End Sub
Sub Dims(a) : ReDim a(3) : End Sub
Sub Grows(a) : ReDim Preserve a(1) : End Sub
Sub Lets(a) : Let a = 4 : End Sub
Sub Sets(a) : Set a = Nothing : End Sub
Sub Element(a) : a(0) = 9 : End Sub
Sub Deep(a) : a(0)(1) = 9 : End Sub
Sub DeepErase(a) : Erase a(0) : End Sub
Sub DeepDim(a) : ReDim a(0)(6) : End Sub
Sub HandsElement(a) : Five a(0) : End Sub
Sub Hands(a) : Five a : End Sub
Sub HandsByCall(a) : Call Five(a) : End Sub
Sub HandsCopy(a) : Five (a) : End Sub
Sub HandsByValue(a) : FiveByValue a : End Sub
Sub HandsOn(a) : HandsOnAgain 1, a : End Sub
Sub HandsOnAgain(b, c) : Hands c : End Sub
Sub InSum(a) : x = 1 + Five(a) : End Sub
Sub InArray(a) : x = Array(Five(a)) : End Sub
Sub InIf(a) : If Five(a) = 1 Then x = 1
End Sub
Sub InElseIf(a)
  If False Then
  ElseIf Five(a) = 1 Then
  End If
End Sub
Sub InDo(a) : Do Until Five(a) = 0 : Loop : End Sub
Sub InLoop(a) : Do : Loop Until Five(a) = 0 : End Sub
Sub InWhile(a) : While Five(a) : Wend : End Sub
Sub InSelect(a) : Select Case Five(a) : Case 0 : End Select : End Sub
Sub InCase(a) : Select Case 0 : Case 1, Five(a) : End Select : End Sub
Sub InFor(a) : For i = Five(a) To 0 : Next : End Sub
Sub InLimit(a) : For i = 1 To Five(a) : Next : End Sub
Sub InStep(a) : For i = 1 To 0 Step Five(a) + 1 : Next : End Sub
Sub InEach(a) : For Each i In Array(Five(a)) : Next : End Sub
Sub InWith(a) : With FiveAndNothing(a) : End With : End Sub
Sub WithMember(a) : With New Changer : .Five a : End With : End Sub
Sub Member(a) : Set k = New Changer : k.Five a : End Sub
Sub MemberInSum(a) : Set k = New Changer : x = 1 + k.Five(a) : End Sub
Sub InIndex(a) : places(Five(a)) = 1 : End Sub
Sub InReDim(a) : ReDim w(Five(a)) : End Sub
Sub InSet(a) : Set u = FiveAndNothing(a) : End Sub
Dim places(3)

Sub Work
  Dim v, out
  v = 1 : Counts v : out = v
  v = 1 : Walks v : out = out & " " & v
  v = Empty : Dims v : out = out & " " & UBound(v)
  v = Array(1) : Grows v : out = out & " " & UBound(v)
  v = 1 : Lets v : out = out & " " & v
  v = 1 : Sets v : out = out & " " & TypeName(v)
  v = Array(1) : Element v : out = out & " " & v(0)
  v = Array(Array(1, 2)) : Deep v : out = out & " " & v(0)(1)
  v = Array(Array(1, 2)) : DeepDim v : out = out & " " & UBound(v(0))
  WScript.Echo out '> 4 8 3 1 4 Nothing 9 9 6
  v = Array(1) : HandsElement v : out = v(0)
  v = 1 : Hands v : out = out & v
  v = 1 : HandsByCall v : out = out & v
  v = 1 : HandsCopy v : out = out & v
  v = 1 : HandsByValue v : out = out & v
  v = 1 : HandsOn v : out = out & v
  WScript.Echo out '> 555115
  v = 1 : InSum v : out = v
  v = 1 : InArray v : out = out & v
  v = 1 : InIf v : out = out & v
  v = 1 : InElseIf v : out = out & v
  v = 1 : InDo v : out = out & v
  v = 1 : InLoop v : out = out & v
  v = 1 : InWhile v : out = out & v
  v = 1 : InSelect v : out = out & v
  v = 1 : InCase v : out = out & v
  WScript.Echo out '> 555555555
  v = 1 : InFor v : out = v
  v = 1 : InLimit v : out = out & v
  v = 1 : InStep v : out = out & v
  v = 1 : InEach v : out = out & v
  v = 1 : InWith v : out = out & v
  v = 1 : WithMember v : out = out & v
  v = 1 : Member v : out = out & v
  v = 1 : MemberInSum v : out = out & v
  v = 1 : InIndex v : out = out & v
  v = 1 : InReDim v : out = out & v
  v = 1 : InSet v : out = out & v
  WScript.Echo out '> 55555555555
  v = Array(Array(1)) : DeepErase v
  On Error Resume Next
  out = UBound(v(0))
  WScript.Echo Err.Number '> 9
End Sub
Work
