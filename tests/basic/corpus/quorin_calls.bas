Sub Main
  Call Quorin.RaiseViolation(1, 2)
  Quorin.ApplyConvention()
  x = Quorin.GetObjectProperty("", "")
  x = Quorin.GetObjectProperty("No""Such", "Obj""ect")
  x = Quorin.GetObjectWorkField(1 + 2, Quorin.ParserEvent())
  If "" = Quorin.ParserEvent() Then
  Select Case Quorin.ParserEvent
    Case "begin Project", "nope", 3, Is > 2, 1 To 2
  End Select
  Quorin.
  Quorin..x
  Set Quorin = Nothing
  Quorin.Unknown = 1
End If
End Sub
