Varnholt Data File Version 1.2
Borehole Design
Müller School
A. Designer
#2024-03-05#
#2024-09-01#
Town of Überlingen
1 Main Street
Annexe
Stillwater
OK
74074

555-1234
555-4321
office@example.org
3
First line

third line, with a comma
86.5
96.25
66
54
1.66
2.7
1
0
0
48.5
43.75
71
101
1.36
4.1
7
0.5
0.25
1.5
1.25
0.75
2.9
20
4

61.5
0.98
58.5
1.45
0.9
2
1
1
0
0
5.5
0.95
0.0625
0.1875
5
8
18.5
1
12.5
1.9
100
0
80
AcmeSeries A
school.zon
/home/designer/zones
12
3.125
120.5
9.75
4.25
3.75
30.125
4321.5
1
0
0
88.25
8.5
3.5
3.25
22.0625
3876.25
2
0.125
0.375
