' Items read and written by index, where the result falls upon what an object lives by.
Option Explicit
Dim d, e, k, v, log

Class Noisy
  Public name, does
  Private Sub Class_Terminate
    log = log & name & " "
    If does = "remove" Then d.RemoveAll
    If does = "write" Then d("written") = name
  End Sub
End Class

Function Made(name, does)
  Set Made = New Noisy
  Made.name = name
  Made.does = does
End Function

Function Whole
  Set Whole = d
End Function

Set d = CreateObject("Scripting.Dictionary")

' A text, number, date and Boolean go in and come out with their types, by texts that are made on the spot too.
d("t") = "texto"
d("t") = d("t") & d("t")
d(1) = 2.5
d(1.0) = d(1) * 2
d("dat" & "e") = #2026-11-22#
d("date") = d("dat" & "e") + 1
WScript.Echo d("t") & " " & d(1) & " " & TypeName(d("d" & "ate")) & " " & d.Count   '> textotexto 5 Date 3
WScript.Echo d.Exists("d" & "ate") & " " & d.Exists("x" & "y") & " " & d.Exists(1.0) & " " & d.Exists(Empty) & " " & d.Count   '> True False True False 3

' The old item ends with the write; what its end does to the dictionary holds.
Set d("o") = Made("first", "")
Set d("o") = Made("second", "write")
WScript.Echo log   '> first
d("o") = 7
WScript.Echo log & d("o") & " " & d("written")   '> first second 7 second
log = ""
Set d("o") = Made("third", "remove")
d("o") = "instead"
WScript.Echo log & d.Count & d.Exists("o")   '> third 0False

' A variable that holds the last share of an object takes an item.
d("n") = 1
Set v = Made("held", "remove")
v = d("n")
WScript.Echo v & " " & log & d.Count   '> 1 third held 0
Set d("n") = Made("inner", "")
Set v = Made("outer", "remove")
log = ""
Set v = d("n")
WScript.Echo v.name & " " & log & d.Count   '> inner outer 0
log = ""
Set v = Nothing
WScript.Echo log   '> inner

' The dictionary that holds itself, and the variable of the dictionary as the target.
Set e = CreateObject("Scripting.Dictionary")
Set e("me") = e
e("n") = 5
WScript.Echo e("me")("me")("n")   '> 5
Set v = CreateObject("Scripting.Dictionary")
Set v("in") = CreateObject("Scripting.Dictionary")
v("in")("n") = 9
Set v = v("in")
WScript.Echo TypeName(v) & v("n")   '> Dictionary9
v = v("n")
WScript.Echo TypeName(v) & v   '> Integer9
k = "n"
k = e(k)
WScript.Echo k   '> 5
Set e("me") = Nothing

' A new object that goes straight in belongs to the dictionary alone.
log = ""
Set d("x") = Made("alone", "")
d.Remove "x"
WScript.Echo log   '> alone
Set Whole()("y") = Made("through", "")
WScript.Echo Whole()("y").name & " " & Whole().Exists("y")   '> through True
d.RemoveAll
WScript.Echo log   '> alone through

' Arrays are copied in and out; what is no key, or no value for the word, is told.
d("a") = Array(1, 2)
v = d("a")
v(0) = 9
WScript.Echo d("a")(0) & v(0)   '> 19
On Error Resume Next
v = d(Array(1))
WScript.Echo Err.Number   '> 5
Err.Clear
v = d.Exists(Array(1))
WScript.Echo Err.Number   '> 5
Err.Clear
Set v = d("a")
WScript.Echo Err.Number   '> 424
Err.Clear
Set d("a") = 5
WScript.Echo Err.Number & " " & IsArray(d("a"))   '> 424 True
Err.Clear
d("a") = Made("valueless", "")
WScript.Echo Err.Number   '> 438

' Case counts or not, also for texts asked for a moment ago.
Set e = CreateObject("Scripting.Dictionary")
e.CompareMode = 1
e("Clave") = 1
e("CLAVE") = e("clave") + 1
WScript.Echo e("cLaVe") & e.Exists("cla" & "VE") & e.Count   '> 2True1
e.Key("clave") = "otra"
WScript.Echo e.Exists("clave") & e("OTRA")   '> False2
