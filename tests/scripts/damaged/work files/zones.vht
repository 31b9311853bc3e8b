Zone Data File Version 3.0
2
11
12
13
14
21
22
23
24.5
1000
1500
4.5
2.4
30.2
7
0.93
67
3.75
1.9
25.1
6.5
0.8
70
5
Café, south
Northfield Heat Pumps
Meadow Single Stage
ML030
0
1
0
0
0
5
0
0
0
0
8
0
32767
5
6.6
90
21
0.055
67
4
6
82.5
20
0.097
70
7



Custom Pump
0
3
1
1000
950
0
0
0
0
2.75
88
41.5
Alder CreekMillrace Water to Water
66
54
71
105
