x = "abc"
For Each c In x '! 451
Next
