Pump List File Version 3.0
2

Northfield Heat Pumps
100 Example Parkway
Northfield, Demonstration Data
USA
555-0100
2
Meadow Single Stage
nf_meadow
#2025-03-01#
Ridge Two Stage Full Load
nf_ridge
#2025-03-01#

Alder Creek
25 Sample Mill Road
Alder Creek, Demonstration Data
USA
555-0125
2
Creekside Compact
ac_compact
#2025-05-15#
Millrace Water to Water
ac_millrace
#2025-05-15#
