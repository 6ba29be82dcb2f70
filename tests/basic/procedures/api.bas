Attribute VB_Name = "modApi"
Option Explicit
DefLng A-Z
DefStr S

' Windows calls, declared for both 32- and 64-bit hosts.
#Const DEBUG_API = 1

#If VBA7 Then
    Private Declare PtrSafe Function GetTickCount Lib "kernel32" () As Long
    Private Declare PtrSafe Sub CopyMemory Lib "kernel32" Alias "RtlMoveMemory" _
        (Destination As Any, Source As Any, ByVal Length As LongPtr)
    Private Declare PtrSafe Function FindWindow Lib "user32" Alias "FindWindowA" ( _
        ByVal lpClassName As String, _
        ByVal lpWindowName As String) As LongPtr
#Else
    Private Declare Function GetTickCount Lib "kernel32" () As Long
    Private Declare Sub CopyMemory Lib "kernel32" Alias "RtlMoveMemory" _
        (Destination As Any, Source As Any, ByVal Length As Long)
    Private Declare Function FindWindow Lib "user32" Alias "FindWindowA" ( _
        ByVal lpClassName As String, _
        ByVal lpWindowName As String) As Long
#End If
Private Declare Function GetPrivateProfileString Lib "kernel32" _
    Alias "GetPrivateProfileStringA" (ByVal lpApplicationName As String, _
    ByVal lpKeyName As Any, ByVal lpDefault As String, _
    ByVal lpReturnedString As String, ByVal nSize As Long, _
    ByVal lpFileName As String) As Long
Public Declare Function SendMessage Lib "user32" Alias "SendMessageA" (ByVal hWnd As Long, _
    ByVal wMsg As Long, ByVal wParam As Long, lParam As Any) As Long

Private Type RECT
    Left As Long
    Top As Long
    Right As Long
    Bottom As Long
End Type

Private Type WindowInfo
#If Win64 Then
    Handle As LongPtr
#Else
    Handle As Long
#End If
    Bounds As RECT
    Title As String * 260
    Flags(0 To 3) As Byte
End Type

Public Enum LogLevel
    llNone = 0
    llError
    llInfo = 2
    [_Last] = llInfo
End Enum

Private mStart As Long
Global Const APP_TITLE = "Ledger"
Public Const MAX_PATH As Long = 260, WM_CLOSE = &H10

Public Function ReadSetting(ByVal section As String, ByVal key As String) As String
    Dim buffer As String, length As Long
    buffer = String$(MAX_PATH, vbNullChar)
    length = GetPrivateProfileString(section, key, "", buffer, Len(buffer), App.Path & "\ledger.ini")
    ReadSetting = Left$(buffer, length)
End Function

Public Sub CloseWindow(ByVal title As String)
#If Win64 Then
    Dim h As LongPtr
#Else
    Dim h As Long
#End If
    h = FindWindow(vbNullString, title)
    If h <> 0 Then SendMessage h, WM_CLOSE, 0&, ByVal 0&
#If DEBUG_API Then
    Debug.Print "Closed "; title; " in "; GetTickCount() - mStart; " ms"
#ElseIf DEBUG_API > 1 Then
    Debug.Print "Closed"
#End If
End Sub

Public Sub Swap(a As Long, b As Long)
    Dim t As Long
    CopyMemory t, a, 4
    CopyMemory a, b, LenB(b)
    CopyMemory b, t, Len(t)
    Call CopyMemory(ByVal VarPtr(a), ByVal VarPtr(b), 4&)
End Sub

Public Function Elapsed() As Long
    Elapsed = GetTickCount - mStart
End Function
