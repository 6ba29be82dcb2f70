Option Explicit
Option Base 1

' Loops and arrays of every shape.
Private mGrid() As Double
Private mNames(1 To 10) As String

Public Sub Shapes()
    Dim i As Long, j As Long, k As Integer
    Dim total As Double
    ReDim mGrid(1 To 5, 1 To 5)
    For i = LBound(mGrid, 1) To UBound(mGrid, 1)
        For j = LBound(mGrid, 2) To UBound(mGrid, 2)
            mGrid(i, j) = i * j
        Next j
    Next i
    For i = 10 To 1 Step -2: total = total + i: Next
    For k = 1 To 3: For j = 1 To 3: total = total - 1: Next j, k
    i = 0
    Do
        i = i + 1
        If i > 100 Then Exit Do
    Loop While i < 50
    Do Until i = 0
        i = i - 1
    Loop
    Do While i < 10: i = i + 1: Loop
    Do
        i = i - 1
    Loop Until i <= 0
    While i < 5
        i = i + 1
    Wend
    Dim v As Variant
    For Each v In Array(1, 2, 3)
        total = total + v
    Next v
End Sub

Public Sub Resize(ByRef holder As Object, ByVal n As Long)
    ReDim holder.Values(1 To n)
    ReDim Preserve holder.Values(1 To holder.Count + n)
    ReDim Preserve mNames(1 To UBound(mNames) + 1)
    With holder
        ReDim .Values(0 To .Count)
    End With
    Dim dynamic() As String, other() As Long
    ReDim dynamic(LBound(mNames) To holder.Size.Max), other(5) As Long
    Erase dynamic, other()
    Erase mGrid
End Sub

Public Function Find(ByVal name As String) As Long
    Dim i As Long
    For i = 1 To UBound(mNames)
        If StrComp(mNames(i), name, vbTextCompare) = 0 Then
            Find = i
            Exit Function
        End If
    Next
    Find = -1
End Function

Public Sub Sort(values() As Long)
    Dim i As Long, j As Long, t As Long, swapped As Boolean
    Do
        swapped = False
        For i = LBound(values) To UBound(values) - 1
            If values(i) > values(i + 1) Then
                t = values(i): values(i) = values(i + 1): values(i + 1) = t
                swapped = True
            End If
        Next
    Loop While swapped
End Sub

Public Sub Classic()
    Dim n As Integer
    n = 1
    GoSub Twice
    On n GoSub Once, Twice
    On n GoTo Done
Once:
    n = n + 1
    Return
Twice:
    n = n * 2
    Return
Done:
End Sub
