WScript.Echo vbOKOnly, vbOKCancel, vbAbortRetryIgnore, vbYesNoCancel, vbYesNo, vbRetryCancel '> 0 1 2 3 4 5
WScript.Echo vbCritical, vbQuestion, vbExclamation, vbInformation '> 16 32 48 64
WScript.Echo vbDefaultButton1, vbDefaultButton2, vbDefaultButton3, vbDefaultButton4 '> 0 256 512 768
WScript.Echo vbApplicationModal, vbSystemModal '> 0 4096
WScript.Echo vbOK, vbCancel, vbAbort, vbRetry, vbIgnore, vbYes, vbNo '> 1 2 3 4 5 6 7
