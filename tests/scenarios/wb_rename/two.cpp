int two;
