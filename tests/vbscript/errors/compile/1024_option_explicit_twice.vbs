Option Explicit
Option Explicit '! 1024
