' A rule condition as the condition editor keeps it.
Option Explicit

Sub Main
    Dim sName As String, nLines As Long
    Dim i%

    On Error GoTo Failed
    Select Case Quorin.ParserEvent()
        Case "begin Procedure"
            sName = Quorin.GetObjectProperty("Procedure", "Name")
            nLines = Val(Quorin.GetObjectProperty("Procedure", "CodeLineCount"))
            If nLines > 200 And Left$(sName, 4) <> "Test" Then
                Call Quorin.RaiseViolation()
            End If
        Case "end Procedure"
            Call Quorin.CancelPendingViolation
        Case Else
    End Select

    If Quorin.ParserEvent() = "begin File" Then
        For i% = 1 To Len(sName)
            If Mid$(sName, i%, 1) Like "[!A-Za-z0-9_]" Then
                Quorin.RaiseViolation
                Exit For
            End If
        Next i%
    End If
    Exit Sub
Failed:
    Debug.Print "Condition failed: "; Err.Description
    Resume Next
End Sub
