' What Err.Raise takes for a number, and what becomes of the other arguments.
On Error Resume Next
Err.Raise 0: WScript.Echo Err.Number: Err.Clear '> 5
Err.Raise 65535: WScript.Echo Err.Number: Err.Clear '> 65535
Err.Raise 65536: WScript.Echo Err.Number: Err.Clear '> 5
Err.Raise -1: WScript.Echo Err.Number: Err.Clear '> -1
Err.Raise "13": WScript.Echo Err.Number: Err.Clear '> 13
Err.Raise "x": WScript.Echo Err.Number: Err.Clear '> 13
Err.Raise Null: WScript.Echo Err.Number: Err.Clear '> 94
Err.Raise Empty: WScript.Echo Err.Number: Err.Clear '> 5
Err.Raise 2147483648: WScript.Echo Err.Number: Err.Clear '> 6
Err.Raise 13.5: WScript.Echo Err.Number: Err.Clear '> 14
Err.Raise True: WScript.Echo Err.Number: Err.Clear '> -1
Err.Raise vbObjectError + 5: WScript.Echo Err.Number - vbObjectError: Err.Clear '> 5
Err.Raise 5, Null: WScript.Echo Err.Number: Err.Clear '> 94
Err.Raise 5, 3, 4: WScript.Echo Err.Number, Err.Source, Err.Description: Err.Clear '> 5 3 4
Err.Raise: WScript.Echo Err.Number: Err.Clear '> 450
Err.Raise 1, 2, 3, 4, 5, 6: WScript.Echo Err.Number: Err.Clear '> 450
Err.Number = 70000: WScript.Echo Err.Number: Err.Clear '> 70000
Err.Number = "x": WScript.Echo Err.Number: Err.Clear '> 13
Err.Description = 5: WScript.Echo Err.Description, TypeName(Err.Description): Err.Clear '> 5 String
WScript.Echo TypeName(Err.Number), TypeName(Err.Source), "[" & Err.Source & Err.Description & Err.HelpFile & "]", Err.HelpContext, TypeName(Err.HelpContext)
'> Long String [] 0 Long
Err.Clear 1: WScript.Echo Err.Number: Err.Clear '> 450
Err.nope: WScript.Echo Err.Number: Err.Clear '> 438
