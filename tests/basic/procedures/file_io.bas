Option Explicit

' Reading and writing the ledger's export files, old style.
Private Type LedgerRecord
    Account As String * 12
    Amount As Currency
    Posted As Date
    Flags As Integer
End Type

Private Const EXPORT_DIR As String = "C:\Ledger\Export"

Public Function CountLines(ByVal path As String) As Long
    Dim f As Integer, lineText As String, n As Long
    f = FreeFile
    Open path For Input As #f
    Do Until EOF(f)
        Line Input #f, lineText
        If Len(Trim$(lineText)) > 0 Then n = n + 1
    Loop
    Close #f
    CountLines = n
End Function

Public Sub WriteReport(ByVal path As String, items As Collection)
    Dim f As Integer
    Dim item As Variant
    f = FreeFile()
    Open path For Output Access Write Lock Write As f
    Print #f, "Report of "; Format$(Now, "yyyy-mm-dd"); Tab(40); "Page 1"
    Print #f, String$(60, "-")
    For Each item In items
        Print #f, Spc(4); item, Len(item);
        Print #f,
    Next item
    Print #f, "Total:", items.Count
    Write #f, "end", items.Count, True, #1/31/2024#
    Close f
End Sub

Public Sub AppendLog(ByVal message As String)
    Dim f As Integer
    f = FreeFile
    Open EXPORT_DIR & "\run.log" For Append Shared As #f
    Print #f, Now; " "; message
    Close #f
End Sub

Public Sub CopyRecords(ByVal source As String, ByVal target As String)
    Dim rec As LedgerRecord
    Dim inFile As Integer, outFile As Integer
    Dim i As Long, total As Long
    inFile = FreeFile
    Open source For Random Access Read As #inFile Len = Len(rec)
    outFile = FreeFile
    Open target For Random Access Read Write Lock Read Write As #outFile Len = Len(rec)
    total = LOF(inFile) \ Len(rec)
    For i = 1 To total
        Get #inFile, i, rec
        If rec.Flags And 1 Then
            Put #outFile, , rec
        End If
    Next
    Lock #outFile, 1 To total
    Unlock #outFile, 1 To total
    Lock #outFile
    Unlock #outFile
    Lock outFile, 3
    Close #inFile, #outFile
End Sub

Public Function ReadWhole(ByVal path As String) As String
    Dim f As Integer, buffer As String
    f = FreeFile
    Open path For Binary Access Read As #f
    buffer = Space$(LOF(f))
    Get #f, , buffer
    Seek #f, 1
    Get f, 1, buffer
    Close #f
    ReadWhole = buffer
End Function

Public Sub ReadFields(ByVal path As String)
    Dim f As Integer, account As String, amount As Double, posted As Date
    f = FreeFile
    Open path For Input As #f
    While Not EOF(f)
        Input #f, account, amount, posted
        Debug.Print account; amount, posted
    Wend
    Close
    Reset
End Sub

Public Sub Housekeeping()
    On Error Resume Next
    MkDir EXPORT_DIR & "\old"
    ChDir EXPORT_DIR
    ChDrive "C"
    FileCopy EXPORT_DIR & "\run.log", EXPORT_DIR & "\old\run.log"
    Name EXPORT_DIR & "\run.log" As EXPORT_DIR & "\old\run.bak"
    Kill EXPORT_DIR & "\*.tmp"
    RmDir EXPORT_DIR & "\old"
    SetAttr EXPORT_DIR, vbNormal
    If Dir$(EXPORT_DIR & "\*.*") = "" Then Kill EXPORT_DIR & "\x"
    Width #1, 80
    On Error GoTo 0
End Sub
