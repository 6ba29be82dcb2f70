' One procedure per kind of statement.
' Ifs in block and single-line form, nested.
Sub Ifs()
If a = 1 Then
    b = 1
ElseIf a = 2 Then
    b = 2
Else
    If c Then d = 1 Else d = 2: e = 3
End If
If a Then b = 1
If a Then If b Then c Else d
If a Then Else b = 2
If a Then 10
If a GoTo 10
If a Then ' block, despite the comment
End If
10 Exit Sub
End Sub
' Select Case.
Sub Cases()
Select Case n
    ' comments may stand before the first Case
    Case 1, 2, 5 To 9
        x = 1
    Case Is >= 10, Is < 0: x = 2
    Case Else
        x = 3
End Select
End Sub
' Loops.
Sub Loops()
For i = 1 To 10 Step 2
    For Each v In items
        If v Then Exit For
    Next
Next i
For i = 10 To 1 Step -1: For j = 1 To 2
Next j, i
Do While a < 10
    a = a + 1
    If a = 5 Then Exit Do
Loop
Do
Loop Until a > 20
Do Until a = 0: a = a - 1: Loop
Do: Loop While False
While a > 0
    a = a - 1
Wend
End Sub
' With, member access, calls with and without parentheses.
Sub Calls()
With rs.Fields("Name")
    .Value = .Value & "x"
    If .Item(1).Size > 0 Then Call .Refresh
    Foo .Value, 2
End With
Call Foo(1, 2)
Call Foo
Foo 1, , 3
Foo (1) + 2, 3
Foo(1)
Foo
obj.Method x:=1, y:=2, Type:=3
Debug.Print a; b;
Debug.Print
Print #1, a
Set rs = Nothing
Set obj = New Collection
Let a = 1
Me.Caption = rs!Name
Mid$(s, 1, 1) = "x"
x = Quorin.GetObjectProperty("Source", "Line")
If TypeOf obj Is Collection Then Stop
End Sub
' Jumps and error handling.
Sub Jumps()
    On Error GoTo Handler
    On Error Resume Next
    On Error GoTo 0
    On n GoTo 100, Handler
    GoTo 100
    GoSub Sub1
100 x = 1
    Exit Sub
Sub1: x = 2
    Return
Handler:
    If Err Then Resume Next
    Resume 100
    Resume
End Sub
' Literals and operators.
Sub Literals()
d = #1/2/2000# + #12:30:00 PM#
n = &HFF& + &O17 + 1.5E+3 + 2# - 3@ * 4! \ 5% Mod 6&
s = "say ""hi""" & Chr$(13) & String$(2, "-")
b = Not a Is Nothing And s Like "a*" Or x Xor y Eqv z Imp w
b = a <> b Or a <= b Or a >= b Or a < b Or a > b
b = a = Not b
x = -2 ^ -2
End Sub
' File statements.
Sub Files()
Open path For Input As #1
Open path For Output Access Write Lock Read Write As f Len = 128
Open path For Append Shared As #f
Open (path) For Binary Access Read Lock Write As #2
Open path As 3 Len = Len(rec)
Line Input #1, s
Input #1, a, b
Print #1, a; b, Spc(2); Tab(10); c;
Print #1,
Write #1, a, #1/2/2000#, b
Get #1, , rec
Put #f, n + 1, rec
Seek #1, 1
Lock #1, 1 To 5
Unlock 1
Name a & ".bak" As b
Close #1, #2
Close
Kill p: FileCopy a, b: MkDir d: RmDir d: ChDir d: Reset
End Sub
' Arrays, graphics and printing.
Sub Graphics()
Erase a, b()
ReDim Preserve obj.Items(1 To obj.Count + 1)
ReDim x(1 To m.Size.Max, 0 To 3), y(n) As New Collection
ReDim m.Rows(1).Cells(3)
pic.Line (x1, y1)-(x2, y2), vbRed, BF
Me.Line -Step(10, 10)
Line Step(1, 1)-(2, 2), , B
pic.Circle Step (x, y), r
Circle (x, y), r, , 0, 3.14, 0.5
obj.PSet (x, y)
PSet Step(1, 1), vbBlack
Scale (0, 100)-(100, 0)
Debug.Print a; b, c
Debug.Print "x =" x
End Sub
' Continuation, colons, comments and any case.
sub main ' lower case is fine
    dim s as string: s = "a" & _
        "b" _
        & "c"
    IF s = "abc" THEN
    REM nothing
    end if: x = 1: y = 2
END SUB
