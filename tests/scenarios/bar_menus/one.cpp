// Source one.
int one() { return 1; }
