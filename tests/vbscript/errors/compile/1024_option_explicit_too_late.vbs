Dim x
Option Explicit '! 1024
