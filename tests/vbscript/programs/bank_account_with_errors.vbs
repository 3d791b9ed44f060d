Class Account
  Private m_balance
  Private Sub Class_Initialize : m_balance = CCur(0) : End Sub
  Public Property Get Balance : Balance = m_balance : End Property
  Public Sub Deposit(v)
    If v <= 0 Then Err.Raise vbObjectError + 1, "Account", "bad amount"
    m_balance = m_balance + v
  End Sub
  Public Sub Withdraw(v)
    If v > m_balance Then Err.Raise vbObjectError + 2, "Account", "not enough"
    m_balance = m_balance - v
  End Sub
End Class
Set a = New Account
a.Deposit 100
a.Withdraw 30.25
WScript.Echo a.Balance * 4 '> 279
On Error Resume Next
a.Withdraw 1000
WScript.Echo Err.Number - vbObjectError, Err.Source, Err.Description '> 2 Account not enough
Err.Clear
a.Deposit -1
WScript.Echo Err.Number - vbObjectError, Err.Description '> 1 bad amount
WScript.Echo a.Balance * 4 '> 279
