Varnholt Data File Version 1.2
Surface Water Design
Mühlteich
A. Designer
#2024-03-05#
#2024-09-01#
Town of Überlingen
1 Mill Lane

Stillwater
OK
74074

555-1234
555-4321
office@example.org
2
Measured in August:
77 degrees at 8 feet
86.5
96.25
66
54
2.7
205
71.5
77
3.2
2
5
0.015
0.002
38.5
32.5
71
101
4.1
20
44.75
43
3.9
3
4
0.013
0.0018
1
0.85
0.5
74
1.8
120
44
2.1
200
76
2.5
60
43.5
2.9
40
3.4
20
4

63.6
0.95
58
5
24
2
0.96
1
1
1.315
15
40000
8
1
80
AcmeSeries A


12
3.125
96
6.95
3.96
3.33
27.2
2359.5
9
9.5
11.25
8.875
16.52
84
6.1
3.88
3.24
23.8
2019.5
4
5
-7.0625
20.275
19.24
