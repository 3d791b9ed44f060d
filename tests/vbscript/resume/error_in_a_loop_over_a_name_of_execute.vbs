' The counter of a loop that only Execute has declared is still known after an error in the body.
Option Explicit
Sub P
  On Error Resume Next
  Dim told
  Execute "Dim k, v"
  For k = 1 To 3
    told = told & k
    told = told & CInt("x")
  Next
  WScript.Echo told, k '> 123 4
  told = ""
  For Each v In Array("a", "b")
    told = told & v
    told = told & CInt("x")
  Next
  WScript.Echo told, v '> ab b
End Sub
P
