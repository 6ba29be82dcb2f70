Option Explicit

' Drawing on a form and a picture box, and printing.
Private Sub DrawFrame(pic As Object)
    Dim x As Single, y As Single
    pic.Cls
    pic.ScaleMode = vbPixels
    pic.Scale (0, 100)-(100, 0)
    pic.Line (0, 0)-(100, 100), vbBlack, B
    pic.Line (10, 10)-(90, 90), RGB(200, 200, 255), BF
    pic.Line (10, 10)-Step(20, 5), , B
    pic.Line -(50, 50)
    pic.Line -Step(5, 5), vbRed
    pic.Line Step(1, 1)-Step(2, 2)
    pic.Circle (50, 50), 20
    pic.Circle Step (5, 5), 3, vbBlue
    pic.Circle (50, 50), 30, , 0, 3.14159, 0.5
    pic.Circle (x, y), 10, vbGreen, -0.5, -2#
    pic.PSet (x, y)
    pic.PSet Step(1, 1), vbRed
    pic.CurrentX = 5: pic.CurrentY = 5
    pic.Print "Legend"; Tab(20); "Value"
    pic.Scale
End Sub

Private Sub Form_Paint()
    Dim i As Integer
    Me.Cls
    For i = 0 To 10
        Me.Line (0, i * 100)-(ScaleWidth, i * 100), QBColor(i Mod 16)
        Line (i * 100, 0)-(i * 100, ScaleHeight)
    Next i
    Circle (ScaleWidth / 2, ScaleHeight / 2), 500, vbRed
    PSet (10, 10), vbBlack
    DrawWidth = 2
    FillStyle = vbFSSolid
    Print "Painted at "; Time$
    Me.Print
    Me.PaintPicture Me.Picture, 0, 0, , , 0, 0, 100, 100
End Sub

Private Sub PrintPage(ByVal title As String)
    Printer.ScaleMode = vbTwips
    Printer.FontSize = 12
    Printer.Print title
    Printer.Print Spc(5); "indented"; Spc(2); "more", "tabbed"
    Printer.Line (1440, 1440)-(Printer.ScaleWidth - 1440, 1500), , BF
    Printer.NewPage
    Printer.EndDoc
    Debug.Print title; Len(title), UCase$(title);
    Debug.Print
    Debug.Print Tab(10); "x"; Tab; "y"
    Debug.Assert Len(title) > 0
End Sub

Private Function Colour(ByVal level As Integer) As Long
    Select Case level
        Case Is < 0: Colour = vbBlack
        Case 0 To 49: Colour = RGB(0, level * 5, 0)
        Case 50 To 99: Colour = RGB(level * 2, 200, 0)
        Case Else: Colour = &HFF&
    End Select
End Function
