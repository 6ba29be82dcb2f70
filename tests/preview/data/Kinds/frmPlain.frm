VERSION 5.00
Begin VB.Form frmPlain
   Caption         =   "Größe"
End
Attribute VB_Name = "frmPlain"
Option Explicit
Private mGröße As Long
