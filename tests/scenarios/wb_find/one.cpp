int total;
int subtotal = total;

int sum() { return Total + total; }
