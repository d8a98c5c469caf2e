int area(int side);
