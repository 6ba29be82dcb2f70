Sub Main
  x = "é中😀" ' مرحبا
  été = 1
    ﻿ ​ y = 2
  ́́ = 3
End Sub
�����