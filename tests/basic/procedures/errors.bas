Option Explicit

' Error handling in its usual shapes.
Public Function SafeDivide(ByVal a As Double, ByVal b As Double) As Double
    On Error GoTo Failed
    SafeDivide = a / b
    Exit Function
Failed:
    SafeDivide = 0
    Resume Next
End Function

Public Sub Retry()
    Dim attempts As Integer
    On Error GoTo Handler
Again:
    attempts = attempts + 1
    Err.Raise vbObjectError + 513, "Retry", "Not yet"
    Exit Sub
Handler:
    If attempts < 3 Then Resume Again
    If Err.Number = 53 Then
        Resume
    ElseIf Err.Number = vbObjectError + 513 Then
        Debug.Print "Gave up: "; Err.Description
        Err.Clear
    Else
        Error Err.Number
    End If
End Sub

Public Sub Numbered()
10    On Error GoTo 100
20    Dim x As Long
30    Dim items As Collection
40    Set items = New Collection
50    x = 1 / 0
60    If x > 0 Then
70        x = 2
80    End If
90    Exit Sub
100   Debug.Print "Error "; Err.Number; " at line "; Erl
110   Resume 90
End Sub

Public Sub NumberedBlocks(ByVal n As Long)
10    Select Case n
20    Case 1
30        Debug.Print "one"
40    Case Else
50        Debug.Print "many"
60    End Select
70    For n = 1 To 3
80        Do While n < 2
90            n = n + 1
100       Loop
110   Next n
120   With Err
130       .Clear
140   End With
End Sub

Public Sub Ignore()
    On Error Resume Next
    Kill "C:\temp\nothing.txt"
    If Err Then Err.Clear
    On Error GoTo -1
    On Error GoTo 0
End Sub

Public Function Describe(ByVal code As Long) As String
    Select Case code
        Case 0: Describe = "None"
        Case 1 To 99: Describe = "System"
        Case Is >= 1000, -1: Describe = "User"
        Case Else: Describe = "Unknown " & CStr(code)
    End Select
End Function
