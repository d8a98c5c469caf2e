int x = pri;
Ж = pu;
