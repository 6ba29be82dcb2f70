' Line-numbered code carried over from an older Basic.
DefInt I-N
DefDbl X-Z
DefStr S

Sub Legacy()
100 Dim I, N, S
110 N = 10
120 S = ""
130 For I = 1 To N
140   S = S & Chr$(64 + I)
150   If I Mod 2 = 0 Then GoTo 170
160   S = S & "-"
170 Next I
180 On Error GoTo 900
190 X = 1.5: Y = 2.5#: Z = X * Y
200 If Z > 3 Then 220 Else 230
210 GoTo 240
220 Print S;
230 Print Z
240 Select Case N
250 Case 10
260   GoSub 800
270 Case Else
280 End Select
290 While N > 0
300   N = N - 1
310 Wend
320 Do
330   Exit Do
340 Loop
350 If N = 0 Then
360   N = 1
370 ElseIf N = 1 Then
380   N = 2
390 Else
400   N = 3
410 End If
420 Exit Sub
800 Print "subroutine"
810 Return
900 Print "error"; Err; Erl
910 Resume Next
End Sub

Sub Sums()
10 Dim A%(10), B&, C!, D#, E@, F$
20 A%(1) = 5%: B& = 70000&: C! = 1.25!: D# = 3.5#: E@ = 2.75@: F$ = "x"
30 D# = A%(1) + B& + C! + D# + E@ + Val(F$)
40 Debug.Print Int(D#); Fix(-D#); Sgn(D#); Abs(D#)
50 Let B& = &H7FFF& + &O17&
60 End
End Sub
