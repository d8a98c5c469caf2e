Paint();
int f()
{
    Paint(1);
    Painter p; Paint();
	Paint(Paint(2));
}
