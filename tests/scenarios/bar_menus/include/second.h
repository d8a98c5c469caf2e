int second;
