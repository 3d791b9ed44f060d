ExecuteGlobal "Class K : Public v : End Class"
Set o = Eval("New K")
o.v = 3
WScript.Echo o.v, TypeName(o) '> 3 K
