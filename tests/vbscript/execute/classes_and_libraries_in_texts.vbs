' As includes do: a library read as text, then used.
lib = "Class Pila" & vbCrLf & _
      "  Private m_datos(), m_n" & vbCrLf & _
      "  Private Sub Class_Initialize : m_n = 0 : ReDim m_datos(0) : End Sub" & vbCrLf & _
      "  Public Sub Push(v)" & vbCrLf & _
      "    ReDim Preserve m_datos(m_n) : m_datos(m_n) = v : m_n = m_n + 1" & vbCrLf & _
      "  End Sub" & vbCrLf & _
      "  Public Function Pop : m_n = m_n - 1 : Pop = m_datos(m_n) : End Function" & vbCrLf & _
      "  Public Property Get Count() : Count = m_n : End Property" & vbCrLf & _
      "End Class" & vbCrLf & _
      "Const LIB_VERSION = ""1.2""" & vbCrLf & "Dim lib_usos : lib_usos = 0" & vbCrLf & _
      "Function NuevaPila() Set NuevaPila = New Pila : lib_usos = lib_usos + 1 End Function"
ExecuteGlobal lib
Set p = NuevaPila
p.Push 1 : p.Push "dos"
WScript.Echo p.Count, p.Pop, p.Pop, p.Count, LIB_VERSION, lib_usos '> 2 dos 1 0 1.2 1
