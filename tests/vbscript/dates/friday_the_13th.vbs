For a = 2020 To 2026
  For m = 1 To 12
    If Weekday(DateSerial(a, m, 13)) = vbFriday Then s = s & m & "/" & a & " "
  Next
Next
WScript.Echo Trim(s) '> 3/2020 11/2020 8/2021 5/2022 1/2023 10/2023 9/2024 12/2024 6/2025 2/2026 3/2026 11/2026
