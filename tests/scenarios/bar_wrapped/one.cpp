int one;
