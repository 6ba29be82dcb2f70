DefInt A-Z
Attribute VB_Name = "modMain"
Public Event Changed(ByVal name As String)
Global Const LIMIT% = 10
Private Declare PtrSafe Function Tick Lib "kernel32" Alias "GetTickCount" () As Long
Function Names() As String()
10 Dim x As _
       Long, y$, z# _
       , w@
20 x = 5& + 1.5! * 2# - 3@ + &H10% + Names&(1)
30 Mid$(y$, 1) = "a": LSet y$ = "b": RSet y$ = "c"
40 RaiseEvent Changed(y$)
50 Select Case x
60 Case 1
70 End Select
End Function
