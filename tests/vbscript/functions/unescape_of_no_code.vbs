WScript.Echo Unescape("%zz%u12"), Unescape("%41%u0042"), Unescape("%U0041"), Unescape("%u00e9%e9") '> %zz%u12 AB A éé
WScript.Echo Unescape("%"), Unescape("%4"), Unescape("a%"), Unescape("%u004"), Unescape("%%41") '> % %4 a% %u004 %A
