WScript.Echo IsNull(Escape(Null)), IsNull(Unescape(Null)) '> True True
WScript.Echo Unescape("%zz%u12"), Unescape("%41%u0042") '> %zz%u12 AB
