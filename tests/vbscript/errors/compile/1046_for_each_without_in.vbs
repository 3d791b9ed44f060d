For Each v Of a '! 1046
Next
