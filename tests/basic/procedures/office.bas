Option Explicit
Option Private Module

' Spreadsheet and database macros, late and early bound.
Public Sub MarkTotals()
    Dim ws As Worksheet, cell As Range
    Dim limit As Double
    Set ws = ThisWorkbook.Worksheets("Totals")
    limit = Application.InputBox(Prompt:="Limit?", Title:="Totals", Type:=1)
    Application.ScreenUpdating = False
    For Each cell In ws.Range("B2", ws.Cells(ws.Rows.Count, 2).End(xlUp))
        If Not IsEmpty(cell.Value) And cell.Value > limit Then
            cell.Interior.Color = RGB(255, 220, 220)
            cell.Offset(0, 1).Value = "over"
        End If
    Next cell
    ws.Range("A1:C1").Font.Bold = True
    Range("A1").Select: Selection.AutoFilter
    [D1] = "Checked " & Format(Now, "yyyy-mm-dd")
    Application.ScreenUpdating = True
End Sub

Public Function Lookup(ByVal id As Long) As Variant
    Dim db As DAO.Database, rs As DAO.Recordset
    Set db = CurrentDb()
    Set rs = db.OpenRecordset("SELECT * FROM Accounts WHERE ID=" & id, dbOpenDynaset)
    With rs
        If Not (.BOF And .EOF) Then
            .Edit
            !Checked = True
            ![Checked On] = Date
            .Update
            Lookup = !Name
        Else
            Lookup = Null
        End If
        .Close
    End With
    DoCmd.OpenForm "frmAccount", acNormal, , "ID=" & id, , acDialog
    Forms!frmAccount!txtNote = Nz(DLookup("Note", "Accounts", "ID=" & id), "")
End Function

Public Sub ExportRange(ByVal path As String)
    Dim data As Variant, r As Long, c As Long, f As Integer, lineText As String
    data = ActiveSheet.UsedRange.Value
    f = FreeFile
    Open path For Output As #f
    For r = LBound(data, 1) To UBound(data, 1)
        lineText = vbNullString
        For c = LBound(data, 2) To UBound(data, 2)
            lineText = lineText & IIf(c > 1, vbTab, "") & CStr(data(r, c))
        Next c
        Print #f, lineText
    Next r
    Close #f
    Workbooks.Open Filename:=path, ReadOnly:=True, Format:=1
End Sub
