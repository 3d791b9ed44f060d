' Where text is compared as text, each accented letter of Latin 1 stands with its plain one, small or capital.
Dim places, plain, i, letter, bare, wrong
places = Array(&HE0, &HE1, &HE2, &HE3, &HE4, &HE5, &HE7, &HE8, &HE9, &HEA, &HEB, &HEC, &HED, &HEE, &HEF, _
    &HF2, &HF3, &HF4, &HF5, &HF6, &HF8, &HF9, &HFA, &HFB, &HFC, &HFD, &HFF)
plain = "aaaaaaceeeeiiiioooooouuuuyy"
WScript.Echo UBound(places) + 1, Len(plain) '> 27 27
For i = 0 To UBound(places)
  letter = ChrW(places(i))
  bare = Mid(plain, i + 1, 1)
  If StrComp(letter & "b", bare & "a", vbTextCompare) <> 1 Then wrong = wrong & " >" & letter
  If StrComp(letter & "a", bare & "b", vbTextCompare) <> -1 Then wrong = wrong & " <" & letter
  If StrComp(UCase(letter) & "b", bare & "a", vbTextCompare) <> 1 Then wrong = wrong & " >" & UCase(letter)
  If StrComp(letter & "a", UCase(bare) & "b", vbTextCompare) <> -1 Then wrong = wrong & " <" & bare
  If StrComp(letter, bare, vbTextCompare) <> 1 Then wrong = wrong & " =" & letter
  If StrComp(letter, UCase(letter), vbTextCompare) <> 0 Then wrong = wrong & " ~" & letter
  If StrComp(letter, bare & "a", vbTextCompare) <> -1 Then wrong = wrong & " +" & letter
Next
WScript.Echo "[" & wrong & "]" '> []

' The eñe follows every n in Spanish, and is one of them in English.
WScript.Echo StrComp("ñ", "nz", vbTextCompare), StrComp("Ñ", "o", vbTextCompare), StrComp("ñ", "Ñ", vbTextCompare) '> 1 -1 0
SetLocale 1033
WScript.Echo StrComp("ñ", "nz", vbTextCompare), StrComp("ña", "nb", vbTextCompare), StrComp("ñ", "n", vbTextCompare) '> -1 -1 1
SetLocale 2058 ' Mexico
WScript.Echo StrComp("ñ", "nz", vbTextCompare) '> 1
' Signs and digits come before letters.
WScript.Echo StrComp("_", "a", vbTextCompare), StrComp("9", "a", vbTextCompare), StrComp("9", "À", vbTextCompare), StrComp("{", "Z", vbTextCompare) '> -1 -1 -1 -1
