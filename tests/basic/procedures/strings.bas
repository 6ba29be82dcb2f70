Attribute VB_Name = "modStrings"
Option Explicit
Option Compare Text

' String helpers the reports share.
Public Function PadRight$(ByVal s$, ByVal n%)
    Dim buffer As String * 40
    If Len(s$) >= n% Then
        PadRight$ = Left$(s$, n%)
    Else
        LSet buffer = s$
        PadRight$ = Left$(buffer, n%)
    End If
End Function

Public Function PadLeft(ByVal s As String, ByVal n As Integer) As String
    Dim buffer As String
    buffer = Space$(n)
    RSet buffer = s
    PadLeft = buffer
End Function

Public Function ReplaceAll(ByVal text As String, ByVal find As String, _
                           ByVal replacement As String) As String
    Dim position&
    position& = InStr(1, text, find, vbTextCompare)
    Do While position& > 0
        text = Left$(text, position& - 1) & replacement & Mid$(text, position& + Len(find))
        position& = InStr(position& + Len(replacement), text, find, vbTextCompare)
    Loop
    ReplaceAll = text
End Function

Public Function Capitalise(ByVal text As String) As String
    Dim i As Long, c As String
    Dim upperNext As Boolean
    upperNext = True
    For i = 1 To Len(text)
        c = Mid$(text, i, 1)
        If upperNext Then Mid$(text, i, 1) = UCase$(c)
        upperNext = (c = " " Or c = "-")
    Next i
    Mid(text, 1) = UCase(Left(text, 1))
    Capitalise = text
End Function

Public Function Words(ByVal text As String) As Variant
    Dim parts() As String, result() As String
    Dim i As Long, n As Long
    parts = Split(Trim$(text), " ")
    ReDim result(0 To UBound(parts))
    For i = LBound(parts) To UBound(parts)
        If parts(i) <> vbNullString Then
            result(n) = parts(i)
            n = n + 1
        End If
    Next
    If n > 0 Then ReDim Preserve result(0 To n - 1) Else Erase result
    Words = result
End Function

Public Function Checksum&(ByVal text$)
    Dim i%, total&, ratio!, weight#, price@
    ratio! = 1.5!
    weight# = 2.25#
    price@ = 10.5@
    For i% = 1 To Len(text$)
        total& = (total& * 31& + AscW(Mid$(text$, i%, 1))) And &H7FFFFFFF
    Next i%
    total& = total& Xor &HFF& Xor &O777&
    Checksum& = total& + CLng(ratio! * weight# * price@) + 100% - 1#
End Function

Public Function Quote(ByVal text As String) As String
    Quote = """" & Replace(text, """", """""") & """"
End Function

Public Function IsBlank(ByVal v As Variant) As Boolean
    IsBlank = IsNull(v) Or IsEmpty(v) Or Len(v & vbNullString) = 0
End Function

Public Function Matches(ByVal text As String, ByVal pattern As String) As Boolean
    Matches = text Like pattern Or text Like "[A-Z]#*" Or StrComp(text, pattern, vbBinaryCompare) = 0
End Function
