int a;
