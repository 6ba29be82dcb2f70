VERSION 5.00
Begin VB.UserControl ucKinds
   Begin VB.Label lblValue
   End
End
Attribute VB_Name = "ucKinds"
Option Explicit
