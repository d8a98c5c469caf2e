int d;
