Option Explicit

' Late-bound objects: files, dictionaries, shell and a spreadsheet.
Private mDict As Object
Private WithEvents mTimer As Timer
Dim fso As Object, shell As Object

Public Sub ListFolder(ByVal folderPath As String)
    Dim folder As Object, file As Object
    Set fso = CreateObject("Scripting.FileSystemObject")
    If Not fso.FolderExists(folderPath) Then Exit Sub
    Set folder = fso.GetFolder(folderPath)
    For Each file In folder.Files
        If LCase$(fso.GetExtensionName(file.Name)) = "log" Then
            Debug.Print file.Name, file.Size, file.DateLastModified
        End If
    Next file
    Set folder = Nothing
End Sub

Public Function Lookup(ByVal key As String) As Variant
    If mDict Is Nothing Then
        Set mDict = CreateObject("Scripting.Dictionary")
        mDict.CompareMode = 1
        mDict.Add "a", 1
        mDict("b") = 2
        mDict.Item("c") = 3
    End If
    If mDict.Exists(key) Then Lookup = mDict(key) Else Lookup = Null
End Function

Public Sub FillSheet()
    Dim xl As Object, book As Object, sheet As Object
    Dim r As Long
    Set xl = CreateObject("Excel.Application")
    xl.Visible = False
    Set book = xl.Workbooks.Add
    Set sheet = book.Worksheets(1)
    With sheet
        .Name = "Totals"
        .Cells(1, 1).Value = "Account"
        .Range("A1:B1").Font.Bold = True
        For r = 2 To 10
            .Cells(r, 1).Value = "Acct" & r
            .Cells(r, 2).Formula = "=" & r & "*2"
        Next r
        With .Columns("A:B")
            .AutoFit
        End With
    End With
    book.SaveAs FileName:="C:\temp\totals.xls", FileFormat:=-4143
    book.Close SaveChanges:=False
    xl.Quit
    Set xl = Nothing
End Sub

Public Sub RunTool()
    Set shell = CreateObject("WScript.Shell")
    Call shell.Run("notepad.exe", 1, False)
    shell.RegWrite "HKCU\Software\Ledger\Last", Now, "REG_SZ"
    Debug.Print shell.Environment("PROCESS")("TEMP")
End Sub

Public Function Describe(obj As Object) As String
    If TypeOf obj Is Collection Then
        Describe = "collection of " & obj.Count
    ElseIf TypeName(obj) = "Dictionary" Then
        Describe = "dictionary"
    Else
        Describe = TypeName(obj)
    End If
End Function

Public Sub Members()
    Dim rs As Object
    Set rs = CreateObject("ADODB.Recordset")
    rs.Open "SELECT * FROM Accounts", "DSN=Ledger", 1, 3
    Do Until rs.EOF
        Debug.Print rs!Account, rs.Fields("Amount").Value, rs![Posted Date]
        rs.MoveNext
    Loop
    rs.Close
    Set rs = Nothing
End Sub
