Attribute VB_Name = "modKinds"
Option Explicit
' Every kind of module-level declaration; café in a comment
DefInt I-K
Public Const PUBLIC_LIMIT As Long = 10
Const PRIVATE_NAME = "x:y" ' a colon in a string is no separator
Global Const GLOBAL_PI = 3.14, GLOBAL_DAYS = 40000
Private Declare Function GetTickCount& Lib "kernel32" ()
Public Declare Sub Sleep Lib "kernel32" _
    (ByVal dwMilliseconds As Long)
Public Enum eKinds
    kOne = 1
    [k Two]
End Enum
Private Type udtPoint
    X As Single
    Names(1 To 3) As String * 8
End Type
Public gCount&, gNames() As String
Private m_colItems As New Collection
Dim iIndex
Public Function Twice%(ByVal iValue As Integer, Optional ByRef vExtra As Variant, _
                       ParamArray vRest())
    Const LOCAL_MAX = 5
    Dim strCafé As String, aPoints(3) As udtPoint
    Static lCalls As Long
    lCalls = lCalls + 1: Twice = iValue * 2
    Debug.Print "GoTo is only text here" ' GoTo in a comment
Retry:
10  If lCalls > LOCAL_MAX Then GoTo Retry
End Function
Private Static Sub Tick()
    Dim lTicks As Long
End Sub
