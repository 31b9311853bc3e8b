Varnholt Data File Version 3.0
Borehole Design
Half School

#2026-01-15#
