VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Begin VB.Form frmKinds
   Caption         =   "Kinds"
   MDIChild        =   -1  'True
   Begin VB.CommandButton cmdOK
      Caption         =   "OK"
      BeginProperty Font
         Name            =   "Arial"
      EndProperty
   End
   Begin VB.TextBox Text1
      Index           =   0
   End
   Begin VB.TextBox Text1
      Index           =   1
   End
   Begin MSComctlLib.ListView lvwItems
   End
   Begin VB.Menu mnuFile
      Caption         =   "&File"
      Begin VB.Menu mnuFileExit
         Caption         =   "E&xit"
      End
   End
End
Attribute VB_Name = "frmKinds"
Attribute VB_PredeclaredId = True
Option Explicit

Private Sub cmdOK_Click()
    Unload Me
End Sub
