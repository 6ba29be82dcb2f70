Option Explicit
Type T
  a As Long
Enum E
  b = 1
End Type
End Enum
Sub Main
  Type X
  Dim a(1 To , ) As New
  ReDim Preserve b(
  Const c = 
  Declare Function f Lib
  Exit Sub
  Exit Do
  Exit For
End Sub
End Sub
Sub Main
Function F(ByVal, Optional x As = 1, ParamArray)
Property Get
Private Sub
End Property
