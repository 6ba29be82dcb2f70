VERSION 5.00
Begin VB.MDIForm mdiMain
   Caption         =   "Main"
End
Attribute VB_Name = "mdiMain"
Option Explicit
