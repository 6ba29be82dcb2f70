Sub Main
Select Case z
Do
Case 1
If x Then
For i = 1 To 2
ElseIf q Then
For i = 1 To 2
Select Case z
If x Then
ElseIf q Then
While x
If x Then
For i = 1 To 2
Case 1
Case 1
For i = 1 To 2
While x
For i = 1 To 2
ElseIf q Then
Case 1
If x Then
For i = 1 To 2
While x
If x Then
Case 1
If x Then
While x
If x Then
ElseIf q Then
Do
With y
Case 1
Do
ElseIf q Then
For i = 1 To 2
With y
ElseIf q Then
Do
For i = 1 To 2
While x
Select Case z
For i = 1 To 2
ElseIf q Then
For i = 1 To 2
If x Then
While x
Else
ElseIf q Then
Case 1
Select Case z
Else
Else
Select Case z
With y
While x
Do
While x
For i = 1 To 2
With y
ElseIf q Then
Else
Select Case z
Else
With y
For i = 1 To 2
For i = 1 To 2
ElseIf q Then
Case 1
Do
Select Case z
Do
Else
Case 1
If x Then
For i = 1 To 2
ElseIf q Then
Select Case z
Select Case z
Select Case z
Else
Else
For i = 1 To 2
For i = 1 To 2
With y
Else
For i = 1 To 2
If x Then
With y
Else
With y
Case 1
Select Case z
If x Then
Else
Select Case z
Do
For i = 1 To 2
Else
If x Then
While x
With y
Do
While x
Case 1
Case 1
Else
For i = 1 To 2
Do
Else
Case 1
ElseIf q Then
With y
Do
Case 1
ElseIf q Then
With y
Case 1
Select Case z
Case 1
While x
Do
For i = 1 To 2
Do
Do
While x
While x
If x Then
Else
Do
With y
With y
If x Then
Do
Case 1
ElseIf q Then
Select Case z
Select Case z
Do
ElseIf q Then
If x Then
Else
ElseIf q Then
Case 1
Case 1
Case 1
Case 1
For i = 1 To 2
Else
Case 1
If x Then
While x
For i = 1 To 2
While x
Else
Do
For i = 1 To 2
Select Case z
If x Then
For i = 1 To 2
If x Then
Do
ElseIf q Then
For i = 1 To 2
Select Case z
If x Then
For i = 1 To 2
While x
Case 1
Do
With y
Select Case z
Select Case z
Else
For i = 1 To 2
For i = 1 To 2
Else
Else
Else
Else
With y
For i = 1 To 2
Do
For i = 1 To 2
Select Case z
With y
Else
Do
ElseIf q Then
If x Then
While x
ElseIf q Then
Select Case z
Do
ElseIf q Then
If x Then
ElseIf q Then
With y
For i = 1 To 2
With y
ElseIf q Then
Select Case z
Do
Select Case z
While x
ElseIf q Then
ElseIf q Then
ElseIf q Then
Select Case z
While x
While x
While x
Case 1
While x
While x
ElseIf q Then
Else
Select Case z
If x Then
If x Then
With y
Else
With y
While x
Select Case z
Else
Select Case z
Select Case z
For i = 1 To 2
While x
For i = 1 To 2
While x
Else
While x
Select Case z
While x
Else
If x Then
Else
Select Case z
For i = 1 To 2
For i = 1 To 2
Case 1
While x
Else
Do
Case 1
Select Case z
For i = 1 To 2
Case 1
Else
Case 1
For i = 1 To 2
Do
Do
Do
If x Then
Do
Else
Do
Else
Select Case z
Do
ElseIf q Then
ElseIf q Then
Do
If x Then
If x Then
For i = 1 To 2
ElseIf q Then
Do
Case 1
While x
While x
If x Then
With y
While x
With y
ElseIf q Then
While x
Select Case z
With y
ElseIf q Then
Case 1
Do
If x Then
Select Case z
Else
ElseIf q Then
Case 1
ElseIf q Then
Do
ElseIf q Then
Do
ElseIf q Then
ElseIf q Then
If x Then
Else
Do
If x Then
Do
Do
Do
Else
For i = 1 To 2
ElseIf q Then
If x Then
Select Case z
ElseIf q Then
ElseIf q Then
ElseIf q Then
Else
For i = 1 To 2
ElseIf q Then
If x Then
While x
While x
With y
If x Then
For i = 1 To 2
ElseIf q Then
Else
ElseIf q Then
If x Then
For i = 1 To 2
Else
Select Case z
ElseIf q Then
ElseIf q Then
While x
With y
Else
ElseIf q Then
ElseIf q Then
Else
ElseIf q Then
While x
ElseIf q Then
With y
ElseIf q Then
While x
Else
Do
Case 1
For i = 1 To 2
Case 1
Else
Select Case z
For i = 1 To 2
While x
Case 1
For i = 1 To 2
While x
With y
For i = 1 To 2
Do
Select Case z
Do
With y
Do
Else
While x
For i = 1 To 2
Case 1
Else
Do
While x
Do
Case 1
ElseIf q Then
Case 1
Select Case z
Case 1
While x
Select Case z
Select Case z
For i = 1 To 2
Select Case z
If x Then
Select Case z
ElseIf q Then
Else
Else
If x Then
Case 1
Select Case z
ElseIf q Then
With y
ElseIf q Then
For i = 1 To 2
For i = 1 To 2
While x
For i = 1 To 2
For i = 1 To 2
With y
With y
If x Then
Do
With y
Do
Case 1
With y
Case 1
Do
ElseIf q Then
ElseIf q Then
Else
Select Case z
For i = 1 To 2
With y
If x Then
Do
Case 1
For i = 1 To 2
With y
If x Then
For i = 1 To 2
With y
For i = 1 To 2
While x
For i = 1 To 2
With y
For i = 1 To 2
Else
If x Then
Select Case z
ElseIf q Then
Case 1
With y
Do
If x Then
ElseIf q Then
While x
For i = 1 To 2
Do
With y
If x Then
Do
While x
With y
With y
ElseIf q Then
While x
With y
Else
ElseIf q Then
Do
With y
Select Case z
If x Then
With y
If x Then
If x Then
If x Then
ElseIf q Then
ElseIf q Then
While x
ElseIf q Then
Else
While x
Else
For i = 1 To 2
Case 1
Else
ElseIf q Then
Case 1
ElseIf q Then
With y
While x
While x
Select Case z
While x
Do
Case 1
Select Case z
If x Then
Do
If x Then
For i = 1 To 2
With y
Case 1
Do
If x Then
For i = 1 To 2
Case 1
ElseIf q Then
With y
While x
With y
If x Then
Else
Do
Do
With y
Else
If x Then
With y
Select Case z
Select Case z
ElseIf q Then
Select Case z
While x
If x Then
With y
While x
Select Case z
Do
If x Then
Select Case z
Case 1
For i = 1 To 2
Else
With y
ElseIf q Then
While x
While x
ElseIf q Then
If x Then
For i = 1 To 2
With y
For i = 1 To 2
Do
Case 1
If x Then
Case 1
If x Then
With y
With y
While x
For i = 1 To 2
ElseIf q Then
Do
Case 1
Select Case z
Else
Do
With y
Do
If x Then
ElseIf q Then
Case 1
ElseIf q Then
Do
ElseIf q Then
ElseIf q Then
If x Then
While x
For i = 1 To 2
If x Then
If x Then
Do
Select Case z
For i = 1 To 2
Case 1
Else
ElseIf q Then
If x Then
If x Then
ElseIf q Then
While x
Else
With y
If x Then
Else
For i = 1 To 2
ElseIf q Then
ElseIf q Then
For i = 1 To 2
ElseIf q Then
For i = 1 To 2
Else
With y
For i = 1 To 2
With y
While x
While x
While x
Else
Else
Case 1
For i = 1 To 2
Else
With y
If x Then
While x
For i = 1 To 2
Do
Select Case z
With y
With y
Do
If x Then
Else
If x Then
Else
With y
For i = 1 To 2
While x
Else
With y
ElseIf q Then
With y
Else
Else
Else
For i = 1 To 2
ElseIf q Then
While x
With y
For i = 1 To 2
Else
If x Then
With y
Else
For i = 1 To 2
ElseIf q Then
Else
With y
Case 1
While x
While x
For i = 1 To 2
For i = 1 To 2
Do
ElseIf q Then
With y
Select Case z
Do
ElseIf q Then
With y
For i = 1 To 2
Select Case z
While x
Else
Else
Case 1
If x Then
Do
If x Then
Else
Else
Case 1
With y
Do
Case 1
Select Case z
Case 1
Select Case z
For i = 1 To 2
Select Case z
If x Then
Select Case z
Select Case z
Case 1
For i = 1 To 2
While x
If x Then
With y
With y
Select Case z
For i = 1 To 2
Case 1
Case 1
For i = 1 To 2
Select Case z
Case 1
With y
If x Then
With y
For i = 1 To 2
If x Then
With y
Do
While x
With y
Case 1
ElseIf q Then
Select Case z
While x
Select Case z
Case 1
If x Then
Case 1
ElseIf q Then
ElseIf q Then
While x
For i = 1 To 2
If x Then
Case 1
Else
Do
With y
Else
If x Then
ElseIf q Then
Do
Do
Else
Case 1
Select Case z
With y
With y
With y
With y
Case 1
While x
With y
Else
ElseIf q Then
Case 1
For i = 1 To 2
Do
Do
For i = 1 To 2
While x
ElseIf q Then
Else
ElseIf q Then
While x
Else
Select Case z
Else
Case 1
Do
ElseIf q Then
While x
While x
For i = 1 To 2
Do
Select Case z
ElseIf q Then
For i = 1 To 2
Select Case z
While x
Select Case z
With y
While x
If x Then
Case 1
Case 1
Case 1
ElseIf q Then
While x
Case 1
With y
Select Case z
If x Then
Else
With y
Select Case z
Do
ElseIf q Then
ElseIf q Then
While x
For i = 1 To 2
With y
While x
Case 1
Case 1
Else
Case 1
With y
If x Then
Do
If x Then
Case 1
Else
Else
If x Then
For i = 1 To 2
Case 1
ElseIf q Then
Else
Else
While x
For i = 1 To 2
While x
Do
Do
ElseIf q Then
For i = 1 To 2
Else
For i = 1 To 2
ElseIf q Then
If x Then
If x Then
Do
While x
If x Then
With y
Do
With y
ElseIf q Then
Case 1
For i = 1 To 2
For i = 1 To 2
For i = 1 To 2
With y
ElseIf q Then
While x
Case 1
With y
While x
If x Then
If x Then
ElseIf q Then
With y
Else
With y
Select Case z
While x
Else
ElseIf q Then
While x
ElseIf q Then
While x
If x Then
Case 1
With y
If x Then
If x Then
While x
Else
Case 1
For i = 1 To 2
With y
While x
Case 1
Select Case z
While x
Else
If x Then
Select Case z
Case 1
Select Case z
Case 1
While x
If x Then
With y
ElseIf q Then
For i = 1 To 2
While x
Else
While x
With y
While x
While x
Else
While x
With y
With y
For i = 1 To 2
Else
Do
While x
Else
Case 1
If x Then
Do
Case 1
If x Then
While x
If x Then
Do
Case 1
If x Then
If x Then
Do
Case 1
Else
Select Case z
For i = 1 To 2
For i = 1 To 2
Do
Select Case z
While x
Do
ElseIf q Then
Else
If x Then
With y
Case 1
Select Case z
Select Case z
Else
Do
For i = 1 To 2
If x Then
For i = 1 To 2
With y
For i = 1 To 2
Select Case z
Case 1
For i = 1 To 2
ElseIf q Then
While x
Case 1
Select Case z
With y
Case 1
For i = 1 To 2
If x Then
Else
While x
Select Case z
ElseIf q Then
Else
While x
Select Case z
Select Case z
Else
If x Then
Case 1
While x
Case 1
If x Then
Case 1
If x Then
Else
For i = 1 To 2
If x Then
With y
While x
For i = 1 To 2
Select Case z
Select Case z
With y
Select Case z
If x Then
With y
Select Case z
With y
With y
If x Then
For i = 1 To 2
If x Then
While x
For i = 1 To 2
Else
Else
Case 1
With y
Case 1
Else
Do
Else
Do
If x Then
With y
Do
While x
Select Case z
Select Case z
Else
Select Case z
For i = 1 To 2
ElseIf q Then
While x
Case 1
Do
While x
Case 1
For i = 1 To 2
If x Then
Else
ElseIf q Then
ElseIf q Then
Select Case z
Do
Case 1
For i = 1 To 2
For i = 1 To 2
With y
For i = 1 To 2
While x
For i = 1 To 2
Case 1
Else
Else
Do
While x
Do
Case 1
Else
While x
ElseIf q Then
For i = 1 To 2
With y
With y
With y
With y
Select Case z
With y
With y
While x
Else
While x
Do
While x
While x
Do
With y
While x
Select Case z
For i = 1 To 2
Case 1
With y
While x
ElseIf q Then
ElseIf q Then
While x
For i = 1 To 2
Else
If x Then
For i = 1 To 2
If x Then
Else
While x
Else
Select Case z
If x Then
With y
While x
For i = 1 To 2
If x Then
While x
While x
For i = 1 To 2
Select Case z
ElseIf q Then
Do
Else
With y
If x Then
For i = 1 To 2
Select Case z
While x
If x Then
Select Case z
Select Case z
Do
If x Then
While x
With y
If x Then
While x
If x Then
Select Case z
Case 1
Select Case z
Do
With y
For i = 1 To 2
While x
If x Then
Else
ElseIf q Then
Else
For i = 1 To 2
Case 1
For i = 1 To 2
Case 1
ElseIf q Then
Do
ElseIf q Then
For i = 1 To 2
Do
Case 1
With y
Case 1
With y
With y
Case 1
If x Then
With y
Select Case z
Case 1
Case 1
If x Then
Select Case z
While x
Case 1
Case 1
While x
If x Then
Case 1
Do
Case 1
For i = 1 To 2
For i = 1 To 2
Case 1
Select Case z
Else
Do
Do
If x Then
If x Then
ElseIf q Then
Do
Case 1
For i = 1 To 2
Select Case z
ElseIf q Then
Do
Do
Select Case z
With y
Do
ElseIf q Then
Do
For i = 1 To 2
For i = 1 To 2
Case 1
Else
While x
With y
Do
If x Then
Else
Select Case z
If x Then
Case 1
For i = 1 To 2
Do
While x
Case 1
While x
Else
Do
While x
If x Then
Case 1
ElseIf q Then
Do
Case 1
Select Case z
For i = 1 To 2
Do
While x
While x
If x Then
ElseIf q Then
If x Then
Select Case z
For i = 1 To 2
Case 1
Else
ElseIf q Then
With y
Case 1
With y
While x
Case 1
Case 1
Select Case z
Else
ElseIf q Then
Else
Do
If x Then
If x Then
Else
Else
While x
Else
Else
Do
Else
Case 1
For i = 1 To 2
For i = 1 To 2
Do
Select Case z
Case 1
Select Case z
For i = 1 To 2
Else
ElseIf q Then
ElseIf q Then
If x Then
If x Then
Do
For i = 1 To 2
Select Case z
ElseIf q Then
For i = 1 To 2
If x Then
ElseIf q Then
Case 1
Do
If x Then
For i = 1 To 2
For i = 1 To 2
While x
Do
Else
With y
Do
While x
For i = 1 To 2
Select Case z
With y
Do
Select Case z
With y
Else
Do
With y
ElseIf q Then
Else
While x
With y
ElseIf q Then
While x
Select Case z
Select Case z
If x Then
While x
Do
Case 1
Do
With y
Select Case z
Case 1
Do
With y
For i = 1 To 2
ElseIf q Then
If x Then
Select Case z
Else
ElseIf q Then
ElseIf q Then
For i = 1 To 2
With y
ElseIf q Then
Case 1
Select Case z
With y
Case 1
Select Case z
Do
Select Case z
Select Case z
For i = 1 To 2
Else
While x
Do
If x Then
With y
ElseIf q Then
With y
With y
Select Case z
If x Then
If x Then
While x
Do
With y
Case 1
Case 1
ElseIf q Then
Select Case z
If x Then
Do
Else
While x
If x Then
If x Then
If x Then
If x Then
Select Case z
With y
For i = 1 To 2
ElseIf q Then
Select Case z
ElseIf q Then
While x
Case 1
With y
Do
While x
Select Case z
Else
Do
Do
If x Then
While x
Do
Else
For i = 1 To 2
For i = 1 To 2
Do
With y
Case 1
With y
If x Then
If x Then
ElseIf q Then
Select Case z
Else
ElseIf q Then
Else
While x
Do
If x Then
If x Then
If x Then
ElseIf q Then
If x Then
Case 1
Do
While x
Do
If x Then
For i = 1 To 2
If x Then
ElseIf q Then
While x
Do
Case 1
While x
ElseIf q Then
ElseIf q Then
Case 1
Do
ElseIf q Then
With y
For i = 1 To 2
With y
If x Then
Else
ElseIf q Then
If x Then
Case 1
Case 1
Else
For i = 1 To 2
Else
Do
While x
For i = 1 To 2
With y
While x
If x Then
For i = 1 To 2
Select Case z
With y
If x Then
With y
ElseIf q Then
Case 1
ElseIf q Then
With y
With y
While x
For i = 1 To 2
ElseIf q Then
If x Then
Do
With y
While x
While x
Do
Select Case z
While x
Case 1
Select Case z
While x
Case 1
ElseIf q Then
Else
Else
ElseIf q Then
If x Then
If x Then
Case 1
While x
With y
While x
Case 1
For i = 1 To 2
Do
Do
If x Then
If x Then
For i = 1 To 2
For i = 1 To 2
Do
Select Case z
Do
If x Then
If x Then
If x Then
Do
If x Then
For i = 1 To 2
If x Then
For i = 1 To 2
Select Case z
While x
ElseIf q Then
For i = 1 To 2
Case 1
For i = 1 To 2
While x
While x
While x
For i = 1 To 2
If x Then
If x Then
For i = 1 To 2
With y
Else
For i = 1 To 2
Do
For i = 1 To 2
While x
With y
Select Case z
Select Case z
Case 1
With y
If x Then
Select Case z
With y
With y
If x Then
Select Case z
Select Case z
ElseIf q Then
Else
With y
If x Then
Case 1
If x Then
Case 1
ElseIf q Then
For i = 1 To 2
Select Case z
Else
If x Then
ElseIf q Then
While x
For i = 1 To 2
With y
Do
Case 1
If x Then
ElseIf q Then
While x
With y
If x Then
If x Then
Select Case z
Else
For i = 1 To 2
Else
Do
Else
Select Case z
ElseIf q Then
With y
Do
With y
While x
While x
Else
Do
For i = 1 To 2
For i = 1 To 2
Else
ElseIf q Then
For i = 1 To 2
Select Case z
Select Case z
For i = 1 To 2
Case 1
Case 1
For i = 1 To 2
Case 1
If x Then
Select Case z
While x
With y
With y
Case 1
ElseIf q Then
ElseIf q Then
Do
Case 1
While x
Else
Do
ElseIf q Then
If x Then
Select Case z
Select Case z
ElseIf q Then
Do
Else
ElseIf q Then
Select Case z
Do
Else
Else
With y
While x
Do
Select Case z
Else
While x
ElseIf q Then
While x
With y
With y
Do
Do
While x
Select Case z
ElseIf q Then
Select Case z
Do
While x
Select Case z
While x
With y
For i = 1 To 2
Do
For i = 1 To 2
While x
Case 1
Do
Do
With y
With y
Case 1
With y
While x
For i = 1 To 2
For i = 1 To 2
With y
While x
Case 1
Else
If x Then
If x Then
Case 1
Case 1
While x
ElseIf q Then
With y
Else
If x Then
Do
With y
Case 1
If x Then
While x
Case 1
Case 1
While x
While x
Do
For i = 1 To 2
Else
Case 1
Select Case z
With y
For i = 1 To 2
Case 1
While x
Case 1
Do
With y
Case 1
Else
Else
If x Then
Case 1
ElseIf q Then
Do
Select Case z
If x Then
Case 1
Else
For i = 1 To 2
If x Then
With y
ElseIf q Then
While x
Do
While x
ElseIf q Then
Select Case z
For i = 1 To 2
Else
ElseIf q Then
While x
Else
ElseIf q Then
If x Then
Select Case z
ElseIf q Then
Select Case z
Case 1
Else
While x
Do
Case 1
ElseIf q Then
For i = 1 To 2
Select Case z
If x Then
With y
With y
Case 1
Case 1
If x Then
If x Then
For i = 1 To 2
Case 1
Case 1
Select Case z
With y
For i = 1 To 2
While x
With y
Case 1
ElseIf q Then
While x
Case 1
Else
While x
Do
Do
For i = 1 To 2
While x
Else
ElseIf q Then
While x
Do
Select Case z
Case 1
Else
With y
ElseIf q Then
Do
Else
Select Case z
While x
With y
Case 1
With y
Case 1
Do
Else
If x Then
With y
Select Case z
While x
With y
Select Case z
Else
Else
Case 1
For i = 1 To 2
Select Case z
Do
With y
Case 1
If x Then
For i = 1 To 2
Select Case z
Do
ElseIf q Then
Select Case z
If x Then
If x Then
While x
For i = 1 To 2
With y
With y
For i = 1 To 2
Do
While x
Do
Else
Select Case z
Do
While x
Case 1
ElseIf q Then
Do
For i = 1 To 2
ElseIf q Then
With y
While x
Else
While x
ElseIf q Then
For i = 1 To 2
Else
For i = 1 To 2
ElseIf q Then
For i = 1 To 2
With y
Case 1
While x
Do
Else
Else
ElseIf q Then
If x Then
Else
Else
Do
Else
While x
Else
Do
ElseIf q Then
If x Then
Do
Select Case z
Else
Else
With y
Else
Select Case z
Case 1
Case 1
For i = 1 To 2
Do
Select Case z
If x Then
If x Then
If x Then
Select Case z
For i = 1 To 2
ElseIf q Then
Else
Else
Do
If x Then
While x
Case 1
Do
Select Case z
For i = 1 To 2
Select Case z
Select Case z
Else
ElseIf q Then
ElseIf q Then
While x
With y
Case 1
Select Case z
Case 1
With y
ElseIf q Then
If x Then
With y
With y
Select Case z
Else
Case 1
Select Case z
ElseIf q Then
With y
ElseIf q Then
Select Case z
While x
Else
For i = 1 To 2
Select Case z
While x
Select Case z
With y
Do
For i = 1 To 2
If x Then
Case 1
ElseIf q Then
Case 1
ElseIf q Then
If x Then
Case 1
With y
For i = 1 To 2
If x Then
If x Then
While x
Else
If x Then
ElseIf q Then
ElseIf q Then
Case 1
Do
For i = 1 To 2
While x
If x Then
Else
Do
For i = 1 To 2
Do
If x Then
Case 1
For i = 1 To 2
If x Then
Select Case z
Do
With y
ElseIf q Then
With y
With y
Do
Case 1
If x Then
Select Case z
If x Then
Case 1
If x Then
Else
ElseIf q Then
If x Then
For i = 1 To 2
Case 1
Case 1
Else
For i = 1 To 2
If x Then
Case 1
Do
Else
Case 1
ElseIf q Then
For i = 1 To 2
For i = 1 To 2
Else
While x
Do
If x Then
Case 1
If x Then
If x Then
For i = 1 To 2
For i = 1 To 2
While x
For i = 1 To 2
Do
Else
If x Then
With y
While x
Else
Do
If x Then
Select Case z
Do
For i = 1 To 2
With y
ElseIf q Then
Else
Else
With y
If x Then
If x Then
If x Then
If x Then
If x Then
For i = 1 To 2
Case 1
With y
With y
Do
Else
If x Then
Select Case z
Select Case z
Else
Else
Do
Do
For i = 1 To 2
Select Case z
Do
Case 1
Else
Case 1
Else
With y
Select Case z
With y
With y
If x Then
Select Case z
If x Then
Do
With y
Case 1
While x
Case 1
Case 1
Case 1
While x
Else
With y
If x Then
Select Case z
With y
With y
Case 1
Do
If x Then
With y
Do
Do
With y
ElseIf q Then
Else
Select Case z
ElseIf q Then
For i = 1 To 2
ElseIf q Then
ElseIf q Then
Else
Case 1
While x
While x
With y
If x Then
Case 1
Else
While x
With y
If x Then
Case 1
Else
ElseIf q Then
For i = 1 To 2
ElseIf q Then
Select Case z
For i = 1 To 2
While x
Case 1
ElseIf q Then
With y
ElseIf q Then
Select Case z
Else
ElseIf q Then
While x
While x
While x
While x
For i = 1 To 2
Do
With y
Select Case z
Select Case z
Case 1
ElseIf q Then
Do
While x
If x Then
Else
Select Case z
For i = 1 To 2
Select Case z
Else
For i = 1 To 2
Do
Select Case z
If x Then
Select Case z
With y
ElseIf q Then
If x Then
For i = 1 To 2
If x Then
While x
Else
While x
With y
With y
Case 1
For i = 1 To 2
Else
Do
With y
If x Then
Select Case z
While x
Do
Case 1
For i = 1 To 2
If x Then
If x Then
If x Then
ElseIf q Then
Select Case z
Else
Else
For i = 1 To 2
Case 1
For i = 1 To 2
For i = 1 To 2
With y
Select Case z
While x
For i = 1 To 2
ElseIf q Then
Case 1
Do
Else
Do
Select Case z
While x
While x
Do
If x Then
With y
Select Case z
If x Then
ElseIf q Then
If x Then
If x Then
With y
ElseIf q Then
Else
If x Then
For i = 1 To 2
Do
Select Case z
If x Then
While x
With y
Else
For i = 1 To 2
Else
Select Case z
Select Case z
With y
Case 1
For i = 1 To 2
Select Case z
Else
Case 1
Do
Else
While x
Do
If x Then
Else
While x
If x Then
Do
While x
For i = 1 To 2
Select Case z
Do
Else
For i = 1 To 2
Case 1
If x Then
For i = 1 To 2
Else
Select Case z
Select Case z
While x
Else
For i = 1 To 2
Select Case z
Do
Select Case z
While x
If x Then
Do
Else
ElseIf q Then
Do
Else
Do
With y
Case 1
Case 1
While x
Do
If x Then
With y
With y
Select Case z
Do
With y
Else
For i = 1 To 2
Select Case z
Else
Else
For i = 1 To 2
Do
ElseIf q Then
If x Then
While x
ElseIf q Then
Else
With y
For i = 1 To 2
With y
While x
Select Case z
Case 1
With y
While x
While x
For i = 1 To 2
Case 1
With y
Case 1
Do
If x Then
With y
Do
If x Then
Else
ElseIf q Then
Select Case z
ElseIf q Then
Do
Else
If x Then
ElseIf q Then
With y
Do
Select Case z
Case 1
If x Then
Case 1
While x
With y
Do
Do
Do
ElseIf q Then
While x
Do
While x
For i = 1 To 2
For i = 1 To 2
Else
With y
Do
While x
Do
While x
With y
While x
If x Then
For i = 1 To 2
ElseIf q Then
Case 1
If x Then
ElseIf q Then
Select Case z
Select Case z
With y
Else
For i = 1 To 2
If x Then
Case 1
Else
Do
With y
While x
Do
Select Case z
If x Then
Do
Select Case z
If x Then
Select Case z
ElseIf q Then
Else
ElseIf q Then
For i = 1 To 2
For i = 1 To 2
Select Case z
While x
Select Case z
Case 1
If x Then
With y
For i = 1 To 2
Else
Else
ElseIf q Then
If x Then
ElseIf q Then
ElseIf q Then
Do
If x Then
While x
For i = 1 To 2
While x
Do
Do
For i = 1 To 2
With y
With y
ElseIf q Then
If x Then
If x Then
For i = 1 To 2
While x
With y
If x Then
Else
ElseIf q Then
While x
Else
For i = 1 To 2
Select Case z
For i = 1 To 2
Do
If x Then
With y
For i = 1 To 2
Else
Else
ElseIf q Then
With y
For i = 1 To 2
For i = 1 To 2
For i = 1 To 2
Case 1
Do
ElseIf q Then
While x
While x
Do
Else
Case 1
Do
If x Then
Case 1
Case 1
ElseIf q Then
If x Then
Case 1
If x Then
Select Case z
Select Case z
Case 1
While x
Select Case z
Case 1
Select Case z
Case 1
ElseIf q Then
If x Then
Select Case z
ElseIf q Then
Do
Select Case z
While x
Case 1
If x Then
Select Case z
For i = 1 To 2
ElseIf q Then
Do
For i = 1 To 2
Select Case z
Case 1
While x
ElseIf q Then
If x Then
While x
Do
Case 1
Case 1
Else
If x Then
If x Then
If x Then
With y
With y
ElseIf q Then
If x Then
For i = 1 To 2
With y
For i = 1 To 2
ElseIf q Then
If x Then
Case 1
While x
If x Then
With y
For i = 1 To 2
With y
Select Case z
Do
For i = 1 To 2
If x Then
ElseIf q Then
With y
For i = 1 To 2
Else
ElseIf q Then
Do
Else
For i = 1 To 2
ElseIf q Then
Do
With y
Case 1
With y
With y
While x
For i = 1 To 2
ElseIf q Then
With y
Else
While x
Case 1
While x
ElseIf q Then
Select Case z
Else
ElseIf q Then
With y
Else
Else
With y
If x Then
While x
Select Case z
While x
While x
ElseIf q Then
ElseIf q Then
Case 1
Case 1
If x Then
Select Case z
Do
While x
Select Case z
ElseIf q Then
Select Case z
Else
With y
With y
While x
With y
If x Then
If x Then
Do
ElseIf q Then
For i = 1 To 2
Select Case z
Else
If x Then
ElseIf q Then
Case 1
Else
Select Case z
For i = 1 To 2
ElseIf q Then
While x
Do
Case 1
Select Case z
Select Case z
Do
While x
With y
ElseIf q Then
For i = 1 To 2
Else
With y
Do
Case 1
For i = 1 To 2
If x Then
Case 1
ElseIf q Then
For i = 1 To 2
Else
Case 1
Do
Case 1
With y
For i = 1 To 2
Case 1
Else
Else
With y
Select Case z
With y
Select Case z
Case 1
ElseIf q Then
ElseIf q Then
Case 1
Select Case z
If x Then
Else
Case 1
Else
With y
Do
ElseIf q Then
With y
Do
Case 1
Case 1
While x
For i = 1 To 2
Select Case z
Select Case z
While x
Select Case z
While x
Case 1
If x Then
If x Then
If x Then
With y
Else
With y
ElseIf q Then
With y
ElseIf q Then
Case 1
ElseIf q Then
ElseIf q Then
Case 1
Case 1
Else
Select Case z
If x Then
Select Case z
Else
If x Then
For i = 1 To 2
ElseIf q Then
While x
For i = 1 To 2
Case 1
Select Case z
ElseIf q Then
Case 1
ElseIf q Then
Do
While x
Case 1
Else
Case 1
Else
Select Case z
ElseIf q Then
For i = 1 To 2
Do
Select Case z
Select Case z
Select Case z
For i = 1 To 2
With y
ElseIf q Then
Do
For i = 1 To 2
With y
Select Case z
ElseIf q Then
Case 1
Do
ElseIf q Then
With y
ElseIf q Then
While x
ElseIf q Then
While x
Case 1
Do
If x Then
For i = 1 To 2
Select Case z
If x Then
Case 1
If x Then
If x Then
With y
ElseIf q Then
If x Then
With y
Case 1
For i = 1 To 2
If x Then
If x Then
While x
Do
Else
ElseIf q Then
With y
ElseIf q Then
ElseIf q Then
Do
While x
Case 1
For i = 1 To 2
Do
Do
ElseIf q Then
ElseIf q Then
For i = 1 To 2
If x Then
For i = 1 To 2
For i = 1 To 2
Do
ElseIf q Then
Else
Else
Case 1
If x Then
If x Then
Select Case z
Do
While x
Select Case z
With y
Do
If x Then
With y
For i = 1 To 2
For i = 1 To 2
Select Case z
While x
Else
Case 1
If x Then
If x Then
While x
Case 1
If x Then
Else
If x Then
While x
While x
While x
If x Then
Do
Do
Select Case z
If x Then
Else
With y
Case 1
With y
Else
For i = 1 To 2
While x
Case 1
While x
Case 1
With y
Case 1
Else
If x Then
While x
For i = 1 To 2
Do
Do
Select Case z
Case 1
Do
If x Then
With y
Case 1
ElseIf q Then
Select Case z
For i = 1 To 2
Select Case z
ElseIf q Then
Case 1
Select Case z
Case 1
For i = 1 To 2
For i = 1 To 2
Case 1
Select Case z
ElseIf q Then
While x
Case 1
While x
Else
With y
Select Case z
While x
Case 1
If x Then
With y
If x Then
Select Case z
Do
While x
Do
For i = 1 To 2
While x
With y
ElseIf q Then
Do
ElseIf q Then
Else
Else
While x
Do
Select Case z
Select Case z
While x
Case 1
Case 1
While x
With y
Else
ElseIf q Then
While x
While x
Else
Do
With y
Else
Select Case z
ElseIf q Then
While x
Case 1
ElseIf q Then
While x
Do
For i = 1 To 2
ElseIf q Then
For i = 1 To 2
ElseIf q Then
With y
Case 1
If x Then
Do
With y
If x Then
Case 1
For i = 1 To 2
Do
While x
Select Case z
While x
For i = 1 To 2
For i = 1 To 2
ElseIf q Then
Select Case z
ElseIf q Then
With y
While x
For i = 1 To 2
With y
For i = 1 To 2
While x
With y
Do
Case 1
With y
Select Case z
Case 1
Else
Do
With y
Do
If x Then
Select Case z
Select Case z
Case 1
If x Then
Else
While x
Case 1
Select Case z
For i = 1 To 2
Do
With y
For i = 1 To 2
With y
While x
If x Then
Case 1
If x Then
Do
Case 1
While x
With y
Do
Case 1
If x Then
ElseIf q Then
With y
Do
While x
Else
ElseIf q Then
With y
Case 1
Select Case z
If x Then
For i = 1 To 2
With y
If x Then
If x Then
While x
For i = 1 To 2
If x Then
Select Case z
While x
Select Case z
For i = 1 To 2
Case 1
Case 1
While x
With y
ElseIf q Then
For i = 1 To 2
Select Case z
Case 1
Else
Select Case z
ElseIf q Then
Else
ElseIf q Then
If x Then
While x
Case 1
ElseIf q Then
Do
Else
While x
If x Then
ElseIf q Then
With y
Do
ElseIf q Then
Do
While x
ElseIf q Then
With y
While x
If x Then
Do
Select Case z
Select Case z
Case 1
For i = 1 To 2
While x
With y
Do
Do
Else
Else
While x
While x
If x Then
ElseIf q Then
Else
Do
Select Case z
With y
Do
Do
While x
Select Case z
For i = 1 To 2
ElseIf q Then
Case 1
Do
Do
Else
Case 1
While x
For i = 1 To 2
With y
If x Then
Select Case z
Else
While x
If x Then
If x Then
With y
With y
While x
For i = 1 To 2
With y
Else
For i = 1 To 2
Do
Select Case z
Else
Else
Select Case z
With y
Do
ElseIf q Then
For i = 1 To 2
If x Then
If x Then
Else
Else
For i = 1 To 2
Select Case z
With y
For i = 1 To 2
Else
Case 1
Else
While x
ElseIf q Then
Select Case z
If x Then
Select Case z
For i = 1 To 2
With y
With y
While x
For i = 1 To 2
Do
If x Then
If x Then
Case 1
Do
With y
Select Case z
Do
ElseIf q Then
Do
For i = 1 To 2
With y
Select Case z
Case 1
Do
Select Case z
Select Case z
While x
Select Case z
Do
ElseIf q Then
Select Case z
With y
While x
If x Then
If x Then
For i = 1 To 2
Case 1
If x Then
While x
Else
Case 1
Else
Do
With y
For i = 1 To 2
Do
While x
Do
Do
Else
Case 1
For i = 1 To 2
If x Then
Else
Else
While x
While x
Select Case z
If x Then
If x Then
ElseIf q Then
Case 1
Do
With y
For i = 1 To 2
If x Then
ElseIf q Then
Case 1
Select Case z
For i = 1 To 2
Else
If x Then
Do
Do
Case 1
With y
If x Then
Else
Select Case z
While x
Else
For i = 1 To 2
ElseIf q Then
Select Case z
ElseIf q Then
Else
Case 1
ElseIf q Then
Do
Case 1
For i = 1 To 2
If x Then
Select Case z
With y
Case 1
Select Case z
Else
Do
With y
Select Case z
ElseIf q Then
If x Then
While x
While x
Else
For i = 1 To 2
Do
Select Case z
ElseIf q Then
Case 1
Select Case z
ElseIf q Then
While x
Else
Case 1
With y
For i = 1 To 2
While x
Do
While x
ElseIf q Then
For i = 1 To 2
While x
With y
For i = 1 To 2
While x
ElseIf q Then
With y
Else
While x
ElseIf q Then
Else
While x
ElseIf q Then
For i = 1 To 2
ElseIf q Then
For i = 1 To 2
Case 1
For i = 1 To 2
Else
Do
ElseIf q Then
ElseIf q Then
ElseIf q Then
For i = 1 To 2
ElseIf q Then
For i = 1 To 2
Else
Case 1
ElseIf q Then
Do
While x
Else
For i = 1 To 2
Do
Select Case z
If x Then
Case 1
While x
If x Then
Select Case z
If x Then
If x Then
While x
Else
With y
For i = 1 To 2
Do
Case 1
For i = 1 To 2
While x
For i = 1 To 2
Select Case z
Do
Select Case z
Select Case z
If x Then
With y
For i = 1 To 2
While x
Select Case z
ElseIf q Then
ElseIf q Then
Select Case z
Else
If x Then
Select Case z
For i = 1 To 2
Select Case z
ElseIf q Then
Select Case z
For i = 1 To 2
If x Then
While x
With y
Select Case z
While x
Else
If x Then
Else
For i = 1 To 2
If x Then
Else
For i = 1 To 2
For i = 1 To 2
With y
Do
Do
ElseIf q Then
With y
Case 1
Do
With y
ElseIf q Then
With y
Else
If x Then
If x Then
Select Case z
Do
Else
ElseIf q Then
Else
If x Then
If x Then
For i = 1 To 2
Do
Case 1
Else
Do
Else
Case 1
While x
ElseIf q Then
For i = 1 To 2
Select Case z
Select Case z
ElseIf q Then
While x
With y
Do
If x Then
While x
Do
Select Case z
Else
Select Case z
Else
Case 1
Select Case z
Select Case z
If x Then
Select Case z
Else
Select Case z
While x
If x Then
While x
Else
If x Then
Do
Do
With y
Case 1
With y
For i = 1 To 2
ElseIf q Then
With y
Select Case z
ElseIf q Then
Do
If x Then
ElseIf q Then
For i = 1 To 2
While x
Case 1
For i = 1 To 2
Select Case z
With y
While x
Do
For i = 1 To 2
With y
Select Case z
Select Case z
ElseIf q Then
While x
Select Case z
ElseIf q Then
Case 1
Select Case z
If x Then
Select Case z
Select Case z
Else
ElseIf q Then
Select Case z
While x
While x
Select Case z
Do
Do
While x
If x Then
Else
Case 1
Else
Case 1
With y
Do
For i = 1 To 2
Do
With y
With y
With y
ElseIf q Then
Select Case z
For i = 1 To 2
While x
For i = 1 To 2
Do
With y
Select Case z
Else
Select Case z
Case 1
For i = 1 To 2
Else
Select Case z
Do
With y
With y
ElseIf q Then
If x Then
Do
With y
While x
If x Then
While x
If x Then
Case 1
Else
While x
With y
ElseIf q Then
For i = 1 To 2
While x
While x
If x Then
Do
If x Then
For i = 1 To 2
For i = 1 To 2
Select Case z
Do
If x Then
While x
With y
ElseIf q Then
If x Then
Select Case z
If x Then
While x
Select Case z
Select Case z
If x Then
Else
Case 1
Select Case z
Do
If x Then
Case 1
If x Then
For i = 1 To 2
Select Case z
Else
Case 1
With y
Else
If x Then
If x Then
Select Case z
Select Case z
If x Then
Case 1
Select Case z
Do
For i = 1 To 2
If x Then
Do
While x
Do
ElseIf q Then
For i = 1 To 2
Select Case z
Select Case z
Case 1
Select Case z
ElseIf q Then
ElseIf q Then
Do
Select Case z
While x
With y
Else
If x Then
With y
ElseIf q Then
Else
ElseIf q Then
With y
Select Case z
ElseIf q Then
ElseIf q Then
With y
Do
With y
If x Then
ElseIf q Then
Else
For i = 1 To 2
Select Case z
Do
While x
Case 1
For i = 1 To 2
If x Then
Do
For i = 1 To 2
If x Then
ElseIf q Then
ElseIf q Then
While x
ElseIf q Then
Do
With y
Select Case z
Do
Do
Do
ElseIf q Then
If x Then
Select Case z
While x
Else
Else
While x
Select Case z
Case 1
Else
While x
Select Case z
If x Then
For i = 1 To 2
If x Then
For i = 1 To 2
Case 1
Select Case z
If x Then
While x
Case 1
Case 1
Case 1
While x
If x Then
With y
If x Then
With y
Case 1
While x
While x
Select Case z
While x
Select Case z
Case 1
With y
With y
Else
While x
Do
Else
With y
Do
With y
With y
For i = 1 To 2
Select Case z
If x Then
Else
While x
Do
Select Case z
Else
While x
If x Then
While x
Select Case z
If x Then
Else
Do
Case 1
Do
With y
If x Then
For i = 1 To 2
Do
If x Then
Do
With y
Do
ElseIf q Then
Select Case z
For i = 1 To 2
Do
Else
Case 1
For i = 1 To 2
Case 1
Select Case z
Case 1
Select Case z
If x Then
While x
While x
If x Then
If x Then
Do
ElseIf q Then
While x
Case 1
For i = 1 To 2
If x Then
If x Then
Select Case z
For i = 1 To 2
For i = 1 To 2
For i = 1 To 2
Else
Do
ElseIf q Then
Case 1
If x Then
Do
While x
ElseIf q Then
Do
ElseIf q Then
ElseIf q Then
For i = 1 To 2
ElseIf q Then
Select Case z
Else
For i = 1 To 2
Select Case z
While x
While x
For i = 1 To 2
With y
Do
If x Then
With y
With y
For i = 1 To 2
If x Then
While x
ElseIf q Then
If x Then
Case 1
ElseIf q Then
Select Case z
With y
If x Then
Select Case z
If x Then
Else
ElseIf q Then
With y
ElseIf q Then
Select Case z
Case 1
With y
Case 1
Case 1
Select Case z
ElseIf q Then
Case 1
Case 1
Do
Case 1
Case 1
Case 1
Do
If x Then
While x
ElseIf q Then
With y
Case 1
While x
While x
For i = 1 To 2
For i = 1 To 2
If x Then
If x Then
Case 1
ElseIf q Then
Select Case z
Else
ElseIf q Then
Select Case z
Else
If x Then
Else
Else
ElseIf q Then
Select Case z
ElseIf q Then
Case 1
While x
Case 1
Select Case z
For i = 1 To 2
Case 1
ElseIf q Then
With y
Select Case z
For i = 1 To 2
ElseIf q Then
While x
With y
With y
Else
Select Case z
ElseIf q Then
Else
While x
Do
For i = 1 To 2
ElseIf q Then
Select Case z
ElseIf q Then
While x
ElseIf q Then
Do
Select Case z
While x
Do
Do
Else
Do
If x Then
Select Case z
Case 1
Select Case z
Case 1
For i = 1 To 2
Case 1
Do
With y
Case 1
For i = 1 To 2
Select Case z
Select Case z
ElseIf q Then
ElseIf q Then
With y
Else
For i = 1 To 2
With y
Case 1
With y
Else
For i = 1 To 2
Else
Else
Do
ElseIf q Then
Do
If x Then
Do
Select Case z
Else
ElseIf q Then
While x
Select Case z
ElseIf q Then
Select Case z
Case 1
With y
If x Then
ElseIf q Then
While x
If x Then
With y
If x Then
Do
With y
ElseIf q Then
With y
Select Case z
With y
While x
With y
Else
For i = 1 To 2
ElseIf q Then
Else
For i = 1 To 2
While x
Do
Case 1
With y
Select Case z
If x Then
Else
Case 1
Select Case z
If x Then
With y
Case 1
Case 1
With y
Select Case z
While x
Case 1
Do
While x
Select Case z
For i = 1 To 2
While x
Select Case z
For i = 1 To 2
For i = 1 To 2
Else
Case 1
Case 1
ElseIf q Then
Case 1
Else
If x Then
For i = 1 To 2
Else
Else
Case 1
Case 1
Else
Do
For i = 1 To 2
Else
Case 1
Else
Do
ElseIf q Then
If x Then
While x
While x
Case 1
ElseIf q Then
If x Then
With y
ElseIf q Then
Select Case z
Case 1
Else
For i = 1 To 2
For i = 1 To 2
While x
For i = 1 To 2
If x Then
For i = 1 To 2
Else
For i = 1 To 2
While x
Else
If x Then
While x
Select Case z
Else
If x Then
ElseIf q Then
Case 1
Do
Case 1
If x Then
Do
Select Case z
Select Case z
While x
ElseIf q Then
If x Then
Do
ElseIf q Then
With y
ElseIf q Then
With y
For i = 1 To 2
Select Case z
Case 1
With y
With y
ElseIf q Then
Case 1
ElseIf q Then
Case 1
If x Then
With y
With y
While x
Case 1
Case 1
ElseIf q Then
With y
With y
While x
Do
If x Then
While x
ElseIf q Then
Select Case z
Else
Else
Do
Select Case z
Select Case z
While x
Else
ElseIf q Then
If x Then
Select Case z
If x Then
ElseIf q Then
For i = 1 To 2
Case 1
Select Case z
If x Then
With y
While x
Else
With y
While x
While x
Else
Case 1
Else
While x
While x
If x Then
Do
Case 1
For i = 1 To 2
If x Then
Do
For i = 1 To 2
Else
Do
If x Then
ElseIf q Then
Do
Else
While x
With y
While x
ElseIf q Then
Do
Do
While x
ElseIf q Then
For i = 1 To 2
Else
For i = 1 To 2
While x
For i = 1 To 2
If x Then
Case 1
While x
With y
Else
Case 1
Do
If x Then
Do
If x Then
Do
Else
With y
While x
Select Case z
ElseIf q Then
Do
With y
With y
Select Case z
ElseIf q Then
While x
Do
While x
Case 1
If x Then
Select Case z
Case 1
Do
With y
While x
ElseIf q Then
For i = 1 To 2
While x
Else
Do
Do
Case 1
Select Case z
Case 1
For i = 1 To 2
If x Then
Select Case z
For i = 1 To 2
While x
ElseIf q Then
ElseIf q Then
For i = 1 To 2
With y
Else
Select Case z
If x Then
Else
For i = 1 To 2
While x
Else
With y
With y
ElseIf q Then
For i = 1 To 2
While x
Do
Else
With y
While x
With y
If x Then
For i = 1 To 2
If x Then
Select Case z
While x
Do
With y
If x Then
Do
Select Case z
Select Case z
Else
Else
While x
Select Case z
Select Case z
Do
For i = 1 To 2
With y
For i = 1 To 2
ElseIf q Then
Else
For i = 1 To 2
ElseIf q Then
For i = 1 To 2
Do
Case 1
Else
If x Then
If x Then
If x Then
ElseIf q Then
For i = 1 To 2
Case 1
Do
Case 1
Select Case z
For i = 1 To 2
Select Case z
Do
Select Case z
Do
For i = 1 To 2
Select Case z
If x Then
Else
With y
Do
With y
For i = 1 To 2
For i = 1 To 2
While x
For i = 1 To 2
Do
Else
With y
ElseIf q Then
ElseIf q Then
For i = 1 To 2
Select Case z
Else
While x
Do
ElseIf q Then
If x Then
ElseIf q Then
With y
Select Case z
While x
With y
Case 1
ElseIf q Then
While x
Do
While x
ElseIf q Then
ElseIf q Then
While x
For i = 1 To 2
If x Then
For i = 1 To 2
If x Then
Else
While x
While x
For i = 1 To 2
Do
Do
With y
If x Then
Case 1
Case 1
ElseIf q Then
For i = 1 To 2
With y
For i = 1 To 2
For i = 1 To 2
While x
While x
While x
ElseIf q Then
If x Then
While x
For i = 1 To 2
Select Case z
For i = 1 To 2
If x Then
While x
Do
With y
Select Case z
For i = 1 To 2
Else
Do
If x Then
Select Case z
Case 1
Case 1
If x Then
For i = 1 To 2
While x
Do
ElseIf q Then
Do
Do
Select Case z
Do
While x
While x
While x
Select Case z
For i = 1 To 2
If x Then
Else
If x Then
Else
ElseIf q Then
Select Case z
For i = 1 To 2
For i = 1 To 2
While x
If x Then
Select Case z
Case 1
For i = 1 To 2
Select Case z
Do
Else
Else
Do
With y
With y
If x Then
Else
Do
Case 1
Case 1
ElseIf q Then
With y
ElseIf q Then
For i = 1 To 2
For i = 1 To 2
With y
While x
While x
While x
Else
ElseIf q Then
While x
Else
If x Then
Case 1
Case 1
Select Case z
Case 1
Case 1
For i = 1 To 2
While x
Select Case z
Case 1
With y
If x Then
With y
Else
If x Then
For i = 1 To 2
Else
Case 1
Case 1
With y
Else
Do
Select Case z
ElseIf q Then
While x
For i = 1 To 2
Select Case z
Case 1
Else
If x Then
With y
Select Case z
For i = 1 To 2
With y
Do
Else
Case 1
ElseIf q Then
While x
For i = 1 To 2
While x
If x Then
Case 1
Do
Case 1
With y
Select Case z
Do
Select Case z
Do
While x
Select Case z
Case 1
With y
Else
Select Case z
ElseIf q Then
While x
Do
Case 1
ElseIf q Then
If x Then
If x Then
Do
For i = 1 To 2
While x
Else
With y
Select Case z
For i = 1 To 2
ElseIf q Then
ElseIf q Then
End Select
Next j
Wend
End Select
Next
End Function
End With
End Sub
Wend
Wend
End With
Wend
End Select
End Function
End If
End Sub
End Sub
End With
End If
End If
Next
End Function
End Select
End Sub
Wend
End Function
Next j
End Sub
End If
End With
End Sub
Next j
End If
Wend
Next j
Loop
End Function
End If
End Select
Next j
Wend
Loop
Wend
End Function
End If
End Select
End Function
End Select
Next
End Select
End Sub
End With
Wend
End With
Next j
End Sub
End If
End Function
End With
Next j
Loop
End Function
End If
Next j
Wend
End Function
Next j
Wend
End If
Wend
End Select
End With
Next j
Wend
Wend
End Sub
Loop
End With
End Sub
End Select
Next
Wend
End With
End Select
End With
End Select
End Sub
Wend
Next
Loop
End Sub
End Function
End Select
Next j
End With
End If
Next j
Wend
End Function
End Sub
End Function
End Select
Next
Wend
End Select
End With
End Select
End Function
Wend
Next
Wend
End Sub
End If
End If
End Function
Wend
End With
End With
Wend
Loop
Next
End Function
Next
End Select
Next
Wend
Next j
Next j
Next
End Select
End Select
End With
End Select
End Select
End Sub
End With
End With
Next j
Next j
End Function
End Function
End Select
Wend
Next j
Loop
End With
Next
End Select
Next
End Function
End If
Loop
End Select
End Select
Loop
Wend
Next j
Next j
Loop
Loop
End Function
Next
Wend
End If
End Select
Wend
Next j
End Select
Wend
Next
End Function
Wend
Loop
Loop
Wend
Next
End With
Next
End With
End If
End Function
Next
Next
End With
Loop
End If
End Sub
Next j
End Sub
Wend
End Function
End If
End Sub
End Function
End If
End If
End Function
End Sub
Next
End Sub
Loop
Wend
End With
End With
End Function
Loop
Loop
End Function
Loop
Wend
End Function
End If
Loop
Next j
End If
End Function
Wend
End Select
End With
Next
Wend
Next
Next
End Select
End Select
End Function
End Select
Loop
End If
End With
End Function
End With
Wend
Next
End Sub
Next j
End Select
End Sub
End Sub
Loop
End With
Loop
Next
End Select
Next j
Wend
Loop
Next
End Function
End If
End Sub
Loop
Loop
Wend
Loop
End Function
Wend
End If
End If
Next
End With
Loop
End Select
End If
End Function
Wend
End Function
End With
Next j
End With
End With
Wend
Next
End If
Next j
End With
End Select
End If
End Sub
Next
End With
Next
Next j
End With
End Sub
End Sub
Next
End With
End With
End Sub
Next j
Next
End Function
Wend
End Function
End Select
Loop
End With
Wend
End If
Loop
Wend
End Function
End Select
End Select
Next j
End Select
Next j
Next j
End If
Next
Loop
End Function
End Select
End If
End If
Next
End Sub
End If
Loop
End Function
Next
End With
End With
End Function
End Sub
End Sub
Loop
End If
Loop
Loop
End With
End Select
Next
Next
Next j
Loop
End Sub
End Sub
End Sub
Next
End If
End Sub
Next j
End Select
Loop
End Sub
End Sub
Next j
Next
End Sub
End Select
Next
Loop
Loop
End If
End Select
Loop
End If
Loop
Next
Loop
End If
End If
End Sub
End If
End Select
Loop
Loop
End If
End Function
End Select
Wend
End If
Next j
End Sub
End If
End Sub
Next
Next
Next j
Next j
End Function
Next j
End Function
End With
Next
End Function
End Select
End If
Next
End If
End Function
Next
End Function
End Function
End Function
Next
End If
End Function
Wend
End Sub
End Select
End If
End Function
Loop
End If
Next j
End Function
End Sub
Loop
Next
Loop
End Select
Next
Next
End Function
End Function
End With
Next
Next
Loop
Next
Next
End With
Wend
Wend
Wend
Wend
Next j
End Sub
End With
Loop
End If
Next
Next
End If
Next
Loop
End Function
End Select
End Sub
End Select
Loop
Next
End If
End If
End If
Next j
End Select
End If
Next j
Wend
End Sub
Wend
Next j
Wend
Wend
End With
End If
End With
End Select
Next
Next j
End Sub
Next j
End Sub
End With
Wend
Loop
End If
End Select
End Function
End If
End With
Loop
End Function
End With
End With
End If
Loop
End With
Next
End Function
Next j
Next
End If
End With
End Select
End With
End With
Next
End Function
Next
End Sub
Next j
Loop
End Function
End If
End Function
Loop
End Select
End Function
Next
Loop
Loop
Wend
End If
Wend
End Select
Next
Next j
End Sub
Next j
Wend
End Select
Loop
End With
Wend
End If
Next
Loop
Wend
Next j
Next
Next
End Select
Wend
Next
Next
Next
End Function
End If
Next
End With
Next
Next j
End Function
Next
End Sub
End Function
Wend
End Sub
Next j
Next
Wend
Wend
End Select
End Select
Next j
End Sub
Next
End Sub
End With
End With
Loop
End If
End Select
Loop
Next
Loop
End With
End With
Wend
End If
Loop
Next
Next
Next j
Wend
Wend
Next j
End If
Next j
End Sub
Next
End If
End Select
Wend
Next
Loop
End If
Next
Wend
End If
Wend
Next j
End With
End With
End Function
Next j
Next j
End With
Wend
End With
End With
Next j
End Function
Next
Loop
Next j
Wend
End Select
End If
Loop
Loop
Loop
End Select
End With
Loop
End Sub
Wend
End If
End If
Next
End Select
End With
Loop
Wend
End If
End Sub
End Sub
End Sub
Next
Next
End Sub
End Function
End Sub
Next
End Select
Next
End Sub
End Sub
Next j
Loop
End Select
End Sub
End If
Next
Loop
Next
Wend
End With
End Sub
End Sub
Loop
End With
End Function
End If
Next
End Function
Loop
End Sub
Loop
End Select
Next
End If
End Select
End Function
End If
Loop
End Function
Next j
End Function
End With
Loop
Next
Next
End Sub
Wend
End Sub
End Sub
Next j
Next
End Sub
End With
Next
Loop
Wend
End With
Next
Next
End Sub
End Sub
Wend
Next j
End Function
End If
End Function
End If
End Sub
End If
End Function
Loop
End Sub
Next j
End With
Next j
End Select
End With
End If
End With
Next j
Loop
End If
End Sub
Next
End Sub
Loop
End If
Wend
End Sub
Next j
Loop
Wend
End With
Loop
Next
End Select
End If
Next j
End If
End With
End Sub
Loop
Next
End Sub
End With
End Function
End Sub
Loop
Loop
Loop
End Sub
Loop
Wend
End Sub
Wend
Loop
End With
End If
End Select
Next j
End With
End Select
End If
End With
Next j
Loop
End If
Next j
Wend
End Sub
End Sub
End Function
End Function
End Select
Next j
Wend
Loop
End Function
Next
Wend
End Select
Next j
Next j
End Function
Next j
End With
End If
Next j
Loop
End Select
Next j
Next
End Sub
End Select
Wend
Loop
Next j
Wend
End Select
Next
End If
End Select
Next
End If
Wend
Next
Wend
Next j
Next j
End Select
Next
End Function
End Select
Wend
End Function
Next
End Sub
Loop
End Sub
End Function
End With
End Function
End Function
Loop
End Select
Next
Wend
End Select
Next j
Wend
Loop
End Select
End With
End Function
Wend
Next
End If
End Sub
Loop
End With
End If
End Sub
End Sub
End With
Next j
End Sub
End With
Loop
End Select
Next
Loop
End Function
End Select
End Select
Next j
Loop
End With
End With
End Select
End Sub
End With
Next j
Loop
Loop
Wend
Next
End If
End Function
Next j
End Select
End Select
Next
End Sub
End Sub
End With
End Function
End With
End With
End Select
End With
Next j
End Sub
End If
Next j
End Select
End With
Next
Wend
End Function
Loop
Loop
Loop
End With
Wend
Wend
Next j
Next
End Sub
End If
Loop
End If
End Function
End Select
End Function
Wend
End If
Next
End If
Next j
Next
Loop
End If
Next j
Loop
Next j
Wend
Loop
End If
End If
Next
Next
Next
Loop
Next j
End Sub
End With
Next
End Function
End With
End With
Wend
End Select
End Sub
Wend
End With
End If
Next
Wend
Next j
Wend
Next
Next
End If
Wend
Next j
End With
End With
End Function
End Sub
Next j
Loop
End Function
End If
Next j
End Select
End Select
Wend
End If
Loop
Wend
Next
End Sub
Next
Next
Next j
Loop
End Sub
End Sub
Loop
Next
End Sub
End Select
Next j
End If
Loop
Loop
Next
End Sub
Loop
Wend
End Function
End Select
End Function
End Function
End With
End If
End If
Loop
End If
Loop
End Function
Wend
Loop
End Sub
Loop
Next j
Loop
Wend
Wend
Next j
Next j
End If
Loop
End Sub
End With
Wend
End Select
End With
End Function
Wend
End If
End With
Next
Wend
End If
End With
End Function
Loop
Next j
Next j
Loop
End Sub
End If
Loop
End With
Next
End Function
End Function
End With
End Sub
End Function
Wend
Next
Next
Next
End Select
End Select
End Sub
Next
Wend
End Function
Loop
End Sub
End With
End Sub
End Select
End With
End Function
End Sub
End With
End If
Next
End Sub
Next
Wend
Next j
End If
End Function
Next j
Next
End Sub
End If
Wend
Next
End With
End Select
End Function
Next
Next j
End Select
Next
End If
End If
Wend
Next j
End Function
Next
Next
End With
Next j
End Function
End Select
Next j
Loop
Next j
End Select
End Select
End With
End With
Next
Loop
End Sub
End Function
Next
Next
Wend
End Select
End Sub
Loop
Next j
Wend
End Sub
End Select
Loop
Next j
Loop
End Sub
Next
End Function
End With
Loop
End If
Wend
End Function
End Sub
Next j
End With
End With
Next j
End With
Loop
End Select
End If
End If
Loop
End With
End If
Wend
End If
End If
End With
Loop
End With
Wend
End With
Wend
End With
End With
End Select
End Select
Wend
Next
Loop
End If
End Select
Loop
End If
Next j
Next j
Wend
Wend
End Function
End With
End Select
End Select
Wend
Next j
Loop
End Function
End With
End If
End With
Next j
End With
Next j
End Function
End If
End Function
End Sub
End With
End Sub
End Sub
Loop
End With
End With
Loop
Next
Next
Next
End With
End If
End If
Loop
End With
Next
Next
End Sub
End If
Loop
End Sub
End Select
Wend
End Sub
End Select
Wend
End Sub
End With
End With
Wend
End With
Next
End Function
Next
End Sub
End Sub
End Select
End If
Loop
Loop
Loop
End With
End Function
End With
Next
End If
End Sub
End Select
End If
Next j
End Select
Next
Next j
End Function
Wend
End Function
End With
Next
Loop
End If
Loop
End With
End Select
Next j
End Select
Next
End Select
Loop
End With
Wend
End With
End Function
Next j
End Sub
End Function
End Function
End If
Next j
End Select
End Function
Next j
Next j
End If
End Function
Next
End With
End If
End If
Loop
End Function
End If
End Function
Loop
End Function
End Sub
Next j
End Function
Loop
Next j
Next j
End Sub
End If
End Select
Next j
Wend
Wend
Loop
End Select
Loop
End Function
End Sub
End If
Next
End If
End With
Next j
Loop
End Function
Wend
Loop
End Function
Next j
Loop
Next j
Loop
Next
End Sub
Loop
Wend
End Select
End Function
End If
End Sub
End If
End Sub
Next
Next
End Function
End Select
Next j
End With
End Sub
Next j
Loop
End Function
End With
End Select
Loop
Loop
Loop
Next j
End Select
End With
End Select
Wend
Wend
Next j
Loop
End Sub
Next
Next j
Loop
End With
Next
End Function
Wend
Next j
End Select
End Sub
End Sub
End Sub
End Sub
Wend
End Sub
End Function
Loop
End Sub
End Function
Next j
End Function
Next j
Loop
Next
End With
End Select
Next
End Select
Next
End With
End Select
End With
End With
End Select
Next j
End Sub
End Function
End If
End If
End Sub
End With
End Function
End Select
End Select
Wend
Next j
End Function
End If
Next j
End With
End Select
End With
Loop
End With
Next j
End Function
End Function
End Select
Next j
Wend
Next
Next j
End If
End With
End Sub
End Sub
End Sub
Wend
End With
End Function
End If
End With
End Function
End Function
End With
End Sub
Next
End With
Wend
End Select
Wend
End If
End With
End Select
Next
End With
End Function
End If
Wend
End With
Wend
End Sub
Next j
End Select
End If
Next
Loop
Loop
End If
Next j
Next j
Wend
Loop
Loop
End If
End Select
Wend
Next
Next
Next j
End Function
End Function
Next
Next j
End Select
Loop
End If
End Sub
End Select
End Select
Next
Next j
Next j
Wend
End If
Next
End If
Next j
Next
End If
End If
End With
Next j
Next
End Sub
Next j
Next
Next j
Loop
End With
Loop
End With
Next
End Select
End With
End Select
End Select
Wend
End Sub
Loop
End Sub
End If
Next j
Next j
Next j
Next j
End With
End If
End Sub
End Function
End If
End Sub
End Function
End If
End Sub
End Sub
End If
End With
End Select
End Function
Next j
End If
End Function
End Function
Next j
End Sub
Next j
End Select
Next j
End If
End Function
End Function
End If
End With
End Select
Loop
End Select
End Select
End With
End Sub
Next j
End With
End Select
Loop
Wend
Loop
End If
End With
End With
End Function
Wend
End With
Next j
End Function
End Sub
Wend
Next
End Sub
End If
Next j
End Select
Next
End Select
Wend
End Function
End Select
End If
Next
Next j
Next
End Select
Wend
Next
End Select
End Sub
Wend
Next
End Sub
End With
Next
End If
End Sub
Wend
Loop
Next
Wend
Wend
End With
Loop
End Function
End Function
End Function
End Select
Wend
End Sub
End With
End Select
End Sub
Next
End If
Next j
Wend
End If
End Function
Next j
End With
End Select
Loop
Wend
End Function
End If
End Sub
End Sub
End If
Next
Next
End If
Loop
End Sub
End Sub
Next
Wend
End With
Next j
Next j
Next
Next j
End Function
Wend
End With
Next j
Next j
Loop
End Sub
Loop
Wend
Wend
End If
Loop
Next j
Wend
Next
End Select
End Function
End Sub
Loop
Next
End Select
End Sub
End With
End If
End Select
Loop
End Sub
End Sub
End Function
Loop
Wend
Next j
End Function
Next
End Function
End With
End Select
Next j
Next j
End Sub
End Sub
End Sub
Wend
End With
Next
End Function
End Sub
End With
Next j
End With
Next
End With
End Select
Next
Next j
End Sub
Wend
End With
End Select
End Function
Next j
End With
End If
End With
Loop
End Sub
Next
Wend
End Sub
End With
End With
End Sub
Loop
End Function
Next j
End With
Loop
Loop
Wend
Wend
Loop
Next
End Select
End If
Loop
End Function
Next
Loop
End Function
End Function
Next
Loop
Next
Wend
Next
Loop
End If
Wend
End If
End Select
Next
Wend
End With
End If
End Function
End Select
End With
End Function
Next j
End If
Loop
Next j
Loop
Next
Loop
Next
Wend
End Function
End With
End Select
End Select
End If
Next
End Select
Next
Wend
End Function
Next j
End Select
End With
End If
End If
End If
End Select
End Function
End Select
Next j
End With
End With
End Function
Next j
End With
End With
Wend
End Function
Next j
Next j
Next j
Next j
Next j
Next
Next
Next j
Wend
End Function
Next
End Function
End Sub
End Select
End Sub
End Function
End If
End If
Loop
End Select
Next j
Loop
End If
Loop
End With
Loop
Next
End Sub
End Select
End Select
End With
End Sub
End If
Loop
End If
End Sub
End Function
Loop
End If
Next j
Loop
Next
Wend
Next
End With
Next
End With
Next
End Select
Wend
Next
End Function
End Sub
Loop
Next j
Next j
Wend
End Select
End With
Next
End Function
End Select
Next j
End If
End Sub
Next
Next j
End If
Wend
End Function
End If
End With
End If
Next
End Function
Loop
End Function
End Select
Next j
Loop
Loop
End Select
Wend
End Sub
Next
Loop
End Sub
End If
Loop
End Select
Next
Loop
End Select
Next
End Function
Wend
End With
End With
Loop
Wend
End With
Loop
End If
End Select
End Select
End Select
Next
Next j
Next
Next
End If
End Function
Loop
Wend
Next
End Select
End Function
End Sub
Wend
Loop
Next
End Sub
End Sub
Wend
Next
End Sub
Next j
Next j
Next
End Sub
End Select
Next j
End If
Next j
End If
Next
Next
End With
Loop
End If
Loop
Wend
End With
Next j
End With
End Select
Wend
Next j
End Sub
End Sub
Next j
End If
Next j
Next
End Function
End Select
Loop
Next j
Wend
Next
Next
End Select
Next
Loop
End If
Next j
End If
End With
Next
Wend
End With
End Function
End Sub
End Function
Loop
Wend
End Function
Loop
End Sub
End With
Next j
End With
End With
End Function
End Function
Loop
Wend
End Function
Next j
End Function
End If
End Select
End Select
Next j
End If
End Function
Wend
Wend
Next
End Sub
End With
End Function
End Sub
Loop
End Function
End Function
End Select
End Function
Wend
Wend
End Select
End If
Wend
End Sub
End With
Loop
End Sub
End With
Wend
End Sub
End With
Next
End With
Loop
Loop
End Select
Wend
End With
End If
Wend
End Function
End If
End With
End With
End Select
End If
End Select
End Function
Wend
Loop
End With
End With
End Sub
Next
Next j
End Sub
Next
End With
Loop
Wend
End Sub
End If
Next j
End With
End Select
End Sub
Wend
End Select
Next j
End With
Next j
Next j
Next j
End With
Wend
End If
Loop
End With
End If
Next j
End If
End Select
End Select
Loop
Next j
End With
End Function
Next
Next
Wend
End Sub
End Function
End Select
Wend
End If
End Select
End Select
Next j
End Select
End If
End With
Next
End With
End With
Next j
End If
Loop
Loop
End If
Loop
Wend
Next
Loop
Loop
Loop
End Sub
End With
Next
End If
End With
End Function
Next
End Function
End Sub
Next
Loop
Loop
End Sub
Wend
End Select
End With
End If
Loop
Next
End With
End Select
Loop
End Select
Loop
End With
Loop
End Select
End If
End Function
End Function
Wend
Wend
End Sub
End Sub
End Sub
End If
End If
End Select
End Sub
Loop
Next j
End Sub
End Function
End Select
Next j
Next
Wend
End Sub
Next
Wend
End Sub
Loop
End If
Next
Next
Next
Next j
End With
End If
End Select
End Select
End Function
End Sub
Wend
End With
End Function
End With
Next j
Next
End Function
End Function
End Sub
Next
End With
Wend
End Function
Loop
Loop
End Select
End With
End With
End Function
Wend
Wend
Next
End With
Next
End With
End Function
End With
Next j
End With
Next
End With
Next j
End Select
End If
End With
Loop
End Select
End If
Next j
Loop
End Function
End Sub
End With
End Select
Wend
Loop
Next j
End Sub
Next j
End With
End If
End If
End Select
Loop
End With
End Select
End If
End Sub
End Function
End Sub
Loop
End Function
Next j
Next
Next j
Next j
Wend
End Function
Next j
Next j
End Function
End With
Wend
End Function
End Function
Next j
End Sub
Next
Next j
Wend
Wend
Wend
Loop
End Function
Loop
End Sub
End With
Next j
End With
End Sub
End Sub
End Function
Next j
End If
Next
Next
End If
End Function
Next j
Wend
Next
Next j
End Function
End If
End If
Loop
End Sub
Next
End Sub
End Function
Loop
Next j
Loop
End With
End With
End If
Next j
End With
End With
Next
Next
End If
Next
End If
Next j
Wend
Wend
Wend
Next
Loop
End Sub
Wend
End Function
End If
End If
Wend
Loop
Wend
Next
End Function
End Sub
Next j
End Select
End Function
End Sub
End Select
End Sub
Loop
Loop
Wend
Wend
End Function
Loop
Next j
Wend
End Select
End If
Loop
Next
Loop
End Sub
End With
End Sub
End Function
End With
End Function
End Sub
End If
End With
End Select
Loop
Next j
End With
End Sub
End Select
Next j
End Function
Next j
End Select
Next j
End Sub
End Function
Loop
Loop
Loop
End With
Next
Wend
Wend
End With
Next
End Sub
Wend
End Select
Loop
End With
End Select
End If
Wend
Wend
Next j
End Function
End Function
Next j
Next j
Wend
Next
End Select
End Sub
End Select
End Select
Loop
Next
Next j
End Select
Next j
End Function
Next j
End With
Loop
End Select
End Select
Wend
Next j
Next
Next j
Loop
Next j
End Sub
End Function
Loop
End Sub
End Function
End Sub
Next
End If
Loop
End Sub
End If
Next
End Function
End Select
Loop
Wend
Loop
Next j
End With
End With
Next
End Sub
Next
Next j
Wend
Next j
Wend
End Function
Next
End If
End If
Loop
Loop
Loop
Next
Wend
Wend
Next
Wend
End Sub
Next j
Wend
End If
Wend
End Sub
Loop
End With
Loop
End Select
Next
Loop
End If
Next
End With
Next
End Sub
End Sub
End If
Loop
Loop
End With
End If
End With
End Select
End Select
End Function
End Select
Loop
Wend
End Select
Next
End Function
End Sub
End Select
End Function
End Sub
Wend
Next j
End Select
End Select
Loop
End If
End Function
Loop
End Sub
Loop
End Function
End Function
Next
Next
End With
End Select
End If
End If
Wend
End Sub
Next j
Loop
End Sub
Next j
Wend
End Select
Loop
Next j
End Select
End If
Wend
End If
End Select
End Sub
End With
End Function
Loop
End With
Next
Next j
End If
Next
Wend
End If
Wend
Wend
End Function
Next j
Next
Next
Next
Wend
End If
End With
Next j
End Select
End Function
End Select
Next
Next
End Function
End Sub
Wend
End Sub
End Sub
End Select
Next
End Select
Loop
End Select
Loop
End With
End Sub
End Select
End Select
End Function
End Function
Wend
Next
End If
End Sub
Wend
Loop
Next j
End Sub
End Select
Wend
End With
Next j
End Function
Next j
End Select
Next j
Wend
Loop
Next
End Function
End If
End Select
Next
End If
End Sub
Wend
End Sub
Next
Next
Next
End Select
Wend
End Function
End If
End Select
End With
Next j
End Sub
Next
End If
End If
Next j
End Function
Loop
Next
Next
End Function
Loop
End Function
Next
Next j
Wend
End Select
End Sub
Wend
Loop
End With
End If
Next
End Function
End Select
Wend
End If
Next
Next
End Select
Next
Loop
Wend
End Sub
Wend
Next j
End Select
End If
Wend
End Sub
End With
Wend
End Function
Wend
End Function
Next
Next
End Function
End Sub
End With
Loop
End With
Next
End With
End Function
End Function
Wend
Wend
End With
Loop
End Select
End Function
Wend
Loop
End Select
End Sub
Wend
Loop
Next j
End Function
Next j
End Function
End If
Next
Wend
Next j
End With
Wend
Loop
End Select
End Sub
Next j
Next
Wend
Next
Next j
End Sub
End Function
End Select
End If
Loop
End Select
End Select
End Select
Loop
End With
End Function
Wend
End Select
End Select
End Function
End Select
Loop
End Select
Next j
End Function
End With
End Function
End Sub
End If
Next
Loop
Next
End Function
Next j
End With
Wend
End Sub
End Sub
End With
Wend
End With
Next j
End Function
Next j
Next j
Next
Next j
End Function
Loop
End Sub
End With
Next
End Function
Next j
Next j
End Function
Loop
End With
Wend
Wend
Next
Wend
Loop
End Select
End If
End Select
Loop
End Select
End Sub
End If
End Sub
End Select
End If
Next
Loop
End Select
Wend
Loop
End If
Next
End Sub
End Select
End Function
Next
Loop
End Sub
Wend
Loop
End If
End With
End If
Next
End If
End Sub
End Function
Next j
End Select
Next j
End Function
End Sub
Wend
End With
End Select
Next j
Loop
Next
End With
End Select
Loop
Wend
End With
End If
End Function
End With
End Function
Next
End If
End With
Wend
Wend
Wend
End Select
End Function
End Sub
End Sub
End Sub
End Sub
End With
Next
Next j
Next
Loop
Next j
Loop
Next j
Loop
End Sub
End With
Loop
End With
End Sub
End Sub
End If
Next j
End If
Next j
End Sub
Next
Next
End Sub
End If
End If
End Sub
End Select
End Function
Next
End Select
Loop
Next j
End If
End Select
Loop
End With
Wend
End Sub
End Select
End Select
End If
End Function
End If
End With
End If
End Select
Loop
Loop
End With
End If
End If
Next
End If
End Select
End Sub
End Sub
End With
Next
End Select
End With
End If
End Select
Wend
End Select
Next
End Sub
End Function
End Function
End Select
Next
End Sub
Next
End Select
Next
End Sub
End Select
End Function
End If
Next
End Sub
Wend
End If
End Select
Wend
End If
End Sub
Loop
End With
End Sub
End Select
Next
Wend
End If
End With
Wend
End Function
Loop
End Select
End If
End Select
End Sub
End Function
Next j
End Sub
Wend
End Function
End If
Wend
End If
Next j
End With
End If
Loop
End If
Next j
Wend
Loop
End Select
Loop
End Function
End With
Next j
Next
Loop
End Sub
End Function
End Select
End With
Next j
End Sub
Next j
End Function
Wend
End With
End If
End Function
Wend
End Sub
End If
Next
Next j
End If
End Select
End Function
Next
End With
End With
Next
Next j
End Select
Next j
Wend
End Function
End If
Next
End Sub
End Function
Next j
End Sub
Next
Loop
Next j
Wend
Loop
End If
End If
Wend
Next
Next j
End Sub
End Function
End With
Next j
Next j
End With
End Select
Next j
End Sub
Wend
Wend
End Function
Next j
Next j
End With
Next j
Loop
End If
Next
Loop
Wend
End If
Wend
End With
Next
Wend
End Sub
End Function
Next j
End Sub
Next
Next
End With
End Select
Next j
Next j
Loop
Next
End If
Next
End Select
Next
Next j
Loop
End Sub
End If
End Select
End Sub
Next
End If
End Select
End With
Loop
Loop
End Select
End With
End Sub
End Function
End With
Next j
End Select
Next
Wend
End Select
Wend
Wend
Next
Loop
End Select
End With
End Sub
Wend
Loop
End Sub
Wend
End Select
Next
Next
End Sub
Next
End Sub
End Select
Wend
End Sub
Wend
End Select
Next
Loop
End Function
Next j
End Function
End Select
Loop
End If
End Sub
End Select
End With
End Select
Next
End Function
Next
End Select
Next j
Wend
End Select
End Function
Next j
Wend
End With
End Sub
End Sub
Wend
End Sub
Next j
Next j
Wend
End Function
End If
End Select
End If
Wend
End Function
End Sub
End With
Loop
End Select
End If
End Sub
End Select
Loop
Next
Next
Loop
Wend
End Select
Loop
End Select
End With
End Sub
End Select
End With
End Select
Next
Loop
Next
Wend
End Function
Next
End Sub
End Select
End With
End Select
Next j
Loop
End Function
End Function
End Select
End With
Wend
End Select
End With
End Sub
End Sub
End If
End Sub
End Function
Loop
End If
Next j
End If
End With
Wend
Next
Loop
Loop
End Sub
Wend
End Sub
End Function
End Select
End Function
Next
End If
Next
Next j
Loop
Next
End Select
Next j
End Function
Wend
End With
Next
Next j
End Function
End With
End Select
Loop
Next
End If
Next
End Sub
End With
End If
End Select
Wend
End With
End Sub
Loop
Wend
Next j
End Sub
Next j
Next j
End Sub
End With
Next j
End Select
End Function
Next
Loop
Wend
End With
Wend
End Function
Loop
Next
End Function
End With
End Select
Loop
End With
End If
End If
End Sub
End Select
End With
Wend
End Sub
Loop
Loop
Wend
Loop
End With
End Function
End Sub
End With
End Select
Next
End If
End If
End Function
End Select
End With
End Sub
Loop
End Select
End Function
Loop
End Sub
End If
End Sub
Loop
End With
End Sub
End If
Wend
Wend
Next j
End Sub
Loop
Wend
End Function
End Sub
Next j
Loop
Wend
End Select
End With
End If
Next
Wend
End With
Loop
Next j
Next j
End Select
Wend
Next
End With
Next j
Next
Wend
Wend
End Function
End Select
Wend
End Sub
Wend
End Function
End With
Wend
End If
Loop
End With
Loop
End With
Loop
End Select
Wend
End With
End If
Wend
Wend
End If
End Function
Wend
Next j
Loop
End With
Next
End With
End With
Next
End Function
Next j
End Select
Wend
Next
End Sub
End Sub
Wend
End With
End Function
End Function
End If
End With
End Select
Wend
End Function
Next j
End Sub
End Sub
End With
Next j
Loop
Wend
Next
Loop
Loop
Loop
End If
Loop
End Function
Loop
Next j
End Function
End Sub
End With
End Sub
End With
End If
Loop
Loop
End Select
End Function
End Sub
Loop
End If
End With
End If
Next
Wend
End With
Next
End Sub
Next j
End Function
End Function
Next j
Next
End Function
Next j
End Select
Next j
Wend
Loop
End With
End Sub
Next
End Sub
End With
End Select
Loop
End With
End If
End Sub
End Sub
Loop
Loop
End Function
End Function
Next
End Sub
Loop
Next
End With
Next j
Next
Loop
End Function
End With
End With
Next
End Select
Next
End Function
End If
Wend
End Select
End Sub
End Sub
Wend
End With
Wend
End Function
End If
Loop
End Sub
Next j
Next
Loop
End With
End Select
Loop
Next
Next
End Function
End If
Next j
End If
End Function
End Sub
End Sub
Wend
Wend
End If
End Select
Wend
End Function
End If
Wend
Next j
End Sub
Loop
Loop
Loop
Next j
End If
Wend
Next j
End Sub
End Select
End With
End If
End Select
End Select
End If
End Function
Next
End Sub
End If
End Select
Next j
End Sub
End Sub
Next j
Next j
End Function
End Select
Next j
End Function
End Select
Wend
Wend
Next
Loop
Next
End Sub
End With
Next
End Function
End Function
End Function
Next j
End Function
Loop
Next j
End If
Next
End With
Loop
End With
Loop
Next
End If
End Select
Next j
End If
Next
End Sub
End Sub
Loop
End Select
Wend
Loop
Next j
End Function
End Sub
End Sub
Next j
End If
End With
End Function
Loop
End With
Next
Loop
End Sub
Next
Next
End With
End Function
End Function
End Function
Next j
End If
Wend
End If
End Sub
End Select
End If
Next j
End With
End Select
End Select
Next
End Select
Loop
End Function
End Function
End With
End Function
End Select
Next j
End Select
Wend
End With
Wend
Next
End Sub
End If
End With
Next
End Select
End Sub
End Sub
Next j
Next
End With
End If
Loop
End If
Next j
End If
Wend
End Sub
End With
End If
Loop
Loop
End Sub
Wend
End Sub
End Sub
End Select
Next
Loop
Next j
End With
Next
End With
End Sub
Next j
End If
End Select
Loop
Next
End Sub
End Sub
Next j
Next
End If
End Select
End Select
Loop
End Function
Next
Loop
End Sub
End With
Loop
End With
Next
End Sub
Next j
End Function
End With
Next
End With
End If
Next
Wend
End Select
Next j
End Function
End With
End If
End Sub
Next
End With
End Function
Loop
Next j
Wend
End Function
Next j
End Function
Wend
Wend
Wend
End Sub
Next j
Wend
Wend
End Sub
Loop
Next j
Loop
End Sub
Next j
Loop
End With
Next j
End Select
Wend
End Select
End Sub
End Select
Next j
End With
End If
End Select
Wend
Next j
End Function
End With
Loop
End Select
Wend
Next j
Next j
End With
End Sub
End Function
End Function
Loop
Next j
Next j
End With
End Function
Wend
End If
End Select
Next j
Next
Wend
Next
Loop
Next
Wend
End Function
End Sub
End With
Loop
Wend
Wend
End With
End If
Next
End If
End If
Next j
Wend
End Function
Next
End Select
Loop
Loop
End Sub
End Function
End With
End Sub
End If
Wend
Wend
Next
End Select
End With
End Function
Wend
Next
Loop
End With
Wend
Wend
Wend
Next
Loop
End If
Next
End Select
End With
Next j
End Select
End With
Wend
Loop
Next j
End Function
End Function
Wend
Next j
Next
End Function
Next j
End If
Loop
End With
End Function
End Function
End Sub
Next j
End Function
End Select
End Sub
Next j
End If
End With
Next
End If
End With
Next j
End If
End If
Next j
Next j
Wend
Wend
Next
End Function
Next j
End Select
Next j
End Function
Wend
End With
Next j
Next j
End Sub
Next j
End Sub
End Select
Next j
Next j
Wend
End Select
Next j
End Function
End With
End Function
Loop
End Select
End With
Next
End Function
End With
End Sub
Next
End Function
End Function
Next
Wend
Next
Next j
End With
End With
End Select
End If
End Function
Next
Next
Next j
End Select
Wend
End With
End If
Next j
Wend
Next
End With
End With
End With
Next j
End Sub
End Sub
End If
End With
Wend
End With
End Function
Next
End With
End If
End With
End Function
End Select
End With
End Function
End Function
End With
End Sub
Wend
Next j
Next
Wend
Next
Loop
End Select
End If
End If
End Function
Wend
End Function
End Function
Next j
End Select
End Function
End Function
Next
Next j
Loop
Next
Next j
End Sub
End If
Loop
End If
Loop
End If
Loop
Next j
End Select
End Function
Next j
Next j
End Function
End Select
End Sub
Wend
End If
Loop
End With
Wend
End Function
End Sub
End If
End With
End Select
Next j
End Sub
Next j
End Function
End With
End If
End Sub
End Function
End Function
Next j
End If
End With
End Sub
End Select
End With
End If
End Sub
End If
Next
End Sub
Next
Next
End Select
End With
Loop
Wend
End Sub
Next
End Sub
End Function
End Function
End Sub
Wend
End Function
End Function
End With
End Sub
Loop
End Select
Next
End Select
Next
End Function
End With
Next j
End Function
End Select
Loop
Loop
Loop
Loop
Loop
End With
End If
End Select
Wend
Wend
End If
End If
End Function
End Select
Wend
End Function
End Select
Wend
Next j
End Sub
End Sub
End Sub
Wend
End Select
End If
Next
End Sub
End With
Next j
End Function
End If
End Sub
Next j
Loop
Wend
End With
Next
End With
End If
End With
End With
End Select
Next
End With
End With
End With
Wend
Next j
Next j
End If
Next
End Sub
End Function
End With
Loop
End Function
Next
End If
End With
Loop
End Select
End Function
Wend
End With
Wend
End Function
End If
Next
End Function
Wend
End Function
End With
Next
End Function
End Select
Wend
End If
End With
End Select
End If
Wend
Wend
End If
End With
End If
End If
Loop
End Function
End Function
End Sub
Next
End With
Next
End Function
Wend
End With
Next
Next j
Next
End Sub
End Sub
Loop
Next j
End Function
Wend
End Function
End With
End Sub
Wend
End Select
End Function
Loop
Next
End If
End Function
End Function
End If
Next j
End Sub
End With
Next j
End Select
End Select
Wend
End Select
Loop
End If
Next
End Function
Next j
Next j
Wend
End Sub
Next j
End If
End If
End With
End With
End If
End If
End Select
Wend
Loop
Loop
Next
End Sub
Loop
Next
Loop
Next
Loop
Loop
Next
End Sub
Next
End With
End Select
End With
End Sub
Next j
End Select
End Sub
Next j
End With
End Select
End Sub
Next j
End Function
Next
