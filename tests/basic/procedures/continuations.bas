Option Explicit

' Long statements cut over several lines.
Private mItems As _
    Collection
Private Const GREETING As String = _
    "Hello, " & _
    "world"

Public Function Total( _
    ByVal a As Long, _
    ByVal b As Long, _
    Optional ByVal c As Long = 0 _
) As Long
    Dim result As _
        Long, _
        other As String, _
        values() _
        As Variant
    result = a + _
             b + _
             c
    If result > 100 _
       And result < 1000 _
    Then
        result = result - 1
    End If
    Total = result
End Function

Public Sub Report()
    Dim message As String
    message = "Line one" & vbCrLf & _
              "Line two" & vbCrLf & _
              "Line three"
    MsgBox message, _
           vbInformation + vbOKOnly, _
           "Report"
    Call Total(1, _
               2, _
               3)
    Select Case Len(message)
        Case 1, _
             2, _
             3
            Debug.Print "short"
        Case Else
            Debug.Print _
                "long"
    End Select
    Dim items As Collection: Set items = _
        New Collection
    ' A comment that goes on _
      over the next line
    items.Add Item:=1, _
              Key:="one"
End Sub

Public Property Get Items() _
    As Collection
    Set Items = mItems
End Property

Public Property Set Items(ByVal value _
    As Collection)
    Set mItems = value
End Property
