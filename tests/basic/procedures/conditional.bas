Option Explicit

' Conditional compilation around headers, blocks and cases.
#Const TRACE = True
#Const LEVEL = 2

#If TRACE Then
Public Sub Log(ByVal message As String, Optional ByVal level As Integer = 1)
    If level <= 2 Then Debug.Print Format$(Now, "hh:nn:ss"); " "; message
#Else
Public Sub Log(ByVal message As String, Optional ByVal level As Integer = 1)
#End If
End Sub

Public Function Limit() As Long
#If LEVEL >= 2 And TRACE Then
    Limit = 1000
#ElseIf LEVEL = 1 Then
    Limit = 100
#Else
    Limit = 10
#End If
End Function

Public Sub Dispatch(ByVal code As Integer)
    Select Case code
#If TRACE Then
        Case 0
            Log "zero"
#End If
        Case 1, 2
            Log "small"
#If LEVEL > 1 Then
        Case 3 To 9
            Log "medium"
#Else
        Case 3 To 5
            Log "medium"
#End If
        Case Else
            Log "large"
    End Select
End Sub

Public Sub Loops()
    Dim i As Long
#If Win32 Then
    For i = 1 To 10
#Else
    For i = 1 To 20
#End If
        If i Mod 2 = 0 Then
#If Not TRACE Then
            Exit For
#Else
            Log CStr(i)
#End If
        End If
    Next i
End Sub

#If Mac Then
Private Function PathSeparator() As String
    PathSeparator = ":"
End Function
#Else
Private Function PathSeparator() As String
    PathSeparator = "\"
End Function
#End If

#If False Then
    ' Code kept for reference; the compiler never reads it.
#End If
