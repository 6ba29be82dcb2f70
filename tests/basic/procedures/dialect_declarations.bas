' Declarations of every kind at module level, then procedures of every kind.
Option Explicit
Private Const LIMIT As Long = 10, NAME_ = "x"
Dim mCount As Integer
Public gItems() As String
Private Type Point
    X As Long
    Names(1 To 3) As String * 20
End Type
Enum Colour
    Red = 1
    Green
End Enum
Private Declare Function GetTickCount Lib "kernel32" () As Long
Declare Sub Sleep Lib "kernel32" Alias "Sleep" (ByVal ms As Long)
Sub Main
    Dim a, b As Long, c(1 To 5, 0 To 2) As String, d() As Integer, e As New Collection
    Static f As Variant
    Const G = 2 ^ 3
    ReDim d(10)
    ReDim Preserve d(1 To LIMIT) As Integer
    Erase c, d
End Sub
Private Function Twice(ByVal n As Long, Optional ByRef m& = 2) As Long
    Twice = n * m&
    Exit Function
End Function
Public Property Get Size() As Long
    Size = 1
End Property
Friend Property Let Size(ByVal value As Long)
End Property
Static Sub Helper(ParamArray items() As Variant)
    Exit Sub
End Sub
