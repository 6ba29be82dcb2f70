Option Explicit

' An invoice class: properties, events, an interface and a default member.
Implements IPrintable

Public Event Changed(ByVal field As String, ByRef cancel As Boolean)
Event Saved()

Private mNumber As Long
Private mLines As Collection
Private mCustomer As Object
Private WithEvents mSource As cInvoice

Private Sub Class_Initialize()
    Set mLines = New Collection
End Sub

Private Sub Class_Terminate()
    Set mLines = Nothing
End Sub

Public Property Get Number() As Long
Attribute Number.VB_UserMemId = 0
    Number = mNumber
End Property

Public Property Let Number(ByVal value As Long)
    Dim cancel As Boolean
    RaiseEvent Changed("Number", cancel)
    If cancel Then Exit Property
    mNumber = value
End Property

Public Property Set Customer(ByVal value As Object)
    Set mCustomer = value
End Property

Public Property Get Customer() As Object
    Set Customer = mCustomer
End Property

Friend Function LineCount() As Long
    LineCount = mLines.Count
End Function

Public Function NewEnum() As IUnknown
Attribute NewEnum.VB_UserMemId = -4
    Set NewEnum = mLines.[_NewEnum]
End Function

Public Sub AddLine(ByVal text As String, Optional ByVal amount As Currency = 0@)
    mLines.Add Array(text, amount)
    RaiseEvent Changed("Lines", False)
End Sub

Public Sub Save()
    RaiseEvent Saved
End Sub

Private Sub IPrintable_PrintTo(ByVal target As Object)
    Dim l As Variant
    For Each l In mLines
        target.Print l(0); Tab(40); Format$(l(1), "0.00")
    Next
End Sub

Private Property Get IPrintable_Title() As String
    IPrintable_Title = "Invoice " & mNumber
End Property

Private Sub mSource_Changed(ByVal field As String, cancel As Boolean)
    cancel = (field = "Number")
End Sub

Public Function Clone() As cInvoice
    Dim copy As cInvoice
    Set copy = New cInvoice
    copy.Number = mNumber
    Set copy.Customer = mCustomer
    Set Clone = copy
End Function

Public Function Equals(other As cInvoice) As Boolean
    If other Is Nothing Then Exit Function
    If Not TypeOf other Is cInvoice Then Exit Function
    Equals = (other.Number = Me.Number) And (ObjPtr(other) <> 0)
End Function
