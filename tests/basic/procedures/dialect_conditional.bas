' Conditional compilation around declarations, procedure headers and cases.
#Const TRACE = 1
#If Win64 Then
Private Declare PtrSafe Sub Sleep Lib "kernel32" (ByVal ms As LongLong)
#Else
Private Declare Sub Sleep Lib "kernel32" (ByVal ms As Long)
#End If
#If TRACE Then
Sub Helper(ByVal level As Long)
#Else
Sub Helper(level)
#End If
  Select Case level
#If TRACE > 1 Then
    Case 1
#ElseIf TRACE Then
    Case 2
#End If
    Case Else
  End Select
End Sub
