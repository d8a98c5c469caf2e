// Notes.
int first() { return 1; }

int second() { return 2; }
