' Patterns one by one: what they find and where.
Set re = New RegExp: re.Global = True
Function All(pattern, text)
    Dim m, s: re.Pattern = pattern
    For Each m In re.Execute(text): s = s & "<" & m.Value & ">" & m.FirstIndex: Next
    All = s
End Function
WScript.Echo All("\d+", "a12b3"), All("\D", "1a2"), All("\w+", "añ_1 b-c"), All("\W", "a ñ"), All("\s", "a" & vbTab & "b c"), All("\S+", " a b")
'> <12>1<3>4 <a>1 <a>0<_1>2<b>5<c>7 < >1<ñ>2 <	>1< >3 <a>1<b>3
WScript.Echo All("[a-c]", "abcd"), All("[^a-c]", "abcd"), All("[-a]", "a-b"), All("[\]a]", "a]b"), All("[a\-c]", "abc-"), All("[\d,]+", "1,2 3"), All("[^\s]+", "a b")
'> <a>0<b>1<c>2 <d>3 <a>0<->1 <a>0<]>1 <a>0<c>2<->3 <1,2>0<3>4 <a>0<b>2
WScript.Echo All("a{2}", "aaaa"), All("a{2,}", "aaaa"), All("a{1,3}", "aaaa"), All("a+?", "aa"), All("a*?b", "aab"), All("a??", "a"), All("(ab)+", "ababa"), All("(?:ab)+", "abab")
'> <aa>0<aa>2 <aaaa>0 <aaa>0<a>3 <a>0<a>1 <aab>0 <>0<>1 <abab>0 <abab>0
WScript.Echo All("^a", "aa"), All("a$", "aa"), All("\ba", "a ba a"), All("\Ba", "ba a"), All("a|b", "cab"), All("(a)(b)?\2", "ab a"), All("(.)\1", "aabbc"), All("x(?=y)", "xyxz"), All("x(?!y)", "xyxz")
'> <a>0 <a>1 <a>0<a>5 <a>1 <a>1<b>2 <a>0<a>3 <aa>0<bb>2 <x>0 <x>2
WScript.Echo All(".", "a" & vbLf & "b"), All("\.", "a.b"), All("\x41", "ABA"), All("\u0042", "ABA"), All("\101", "ABA"), All("\t", "a" & vbTab), All("\n", "a" & vbLf), All("\r\n", vbCrLf), All("\\", "a\b"), All("\/", "a/b")
'> <a>0<b>2 <.>1 <A>0<A>2 <B>1 <A>0<A>2 <	>1 <
'> >1 <
'> >0 <\>1 </>1
WScript.Echo All("", "ab"), All("a*", "ba"), All("(?=a)", "aa") '> <>0<>1<>2 <>0<a>1<>2 <>0<>1
re.IgnoreCase = True: WScript.Echo All("ÁB", "áb ÁB"), All("[A-C]+", "abcd"), All("(a)\1", "aA") '> <áb>0<ÁB>3 <abc>0 <aA>0
re.Multiline = True: WScript.Echo All("^.", "a" & vbLf & "b" & vbCrLf & "c"), All(".$", "a" & vbLf & "b"): re.Multiline = False: WScript.Echo All("^.", "a" & vbLf & "b")
'> <a>0<b>2<c>5 <a>0<b>2
'> <a>0
re.Pattern = "(a)|(b)|(c)": Set m = re.Execute("cab"): WScript.Echo m(0).SubMatches.Count, IsEmpty(m(0).SubMatches(0)), m(0).SubMatches(2), m(1).SubMatches(0), m.Count
'> 3 True c a 3
re.Pattern = "(\d)(\d)?": WScript.Echo re.Replace("1 23", "[$1,$2]"), re.Replace("1 23", "$3"), re.Replace("12", "$0"), re.Replace("12", "$$1"), re.Replace("12", "$"), re.Replace("12", "$`|$'")
'> [1,] [2,3] $3 $3 $0 $1 $ ||
re.Global = False: WScript.Echo re.Replace("1 2", "x"), re.Execute("1 2").Count: re.Pattern = "z": WScript.Echo re.Replace("abc", "x"), re.Execute("abc").Count, re.Test("z")
'> x 2 1
'> abc 0 True
On Error Resume Next
For Each p In Array("(", ")", "[", "a{2", "*", "a**", "\", "[b-a]", "(?", "(?<n>a)", "a{3,1}", "+", "?", "(?:", "[a", "a{,2}", "]", "}", "{")
    re.Pattern = p: x = re.Test("a"): s2 = s2 & p & " " & Err.Number & " ": Err.Clear
Next
WScript.Echo s2 '> ( 5020 ) 5017 [ 5019 a{2 0 * 5018 a** 5018 \ 5017 [b-a] 5021 (? 5017 (?<n>a) 5017 a{3,1} 5017 + 5018 ? 5018 (?: 5020 [a 5019 a{,2} 0 ] 0 } 0 { 0 |
