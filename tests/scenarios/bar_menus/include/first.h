int first;
