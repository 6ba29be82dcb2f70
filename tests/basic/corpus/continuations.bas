Sub Main
  x = 1 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
 _
  + 2
  ' comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
still comment _
and the last
  y = _
End Sub _