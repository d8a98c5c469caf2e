int other() { return 2; }
