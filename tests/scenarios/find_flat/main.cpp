int main()
{
    tool(1);
}
// draw local Shape Inner Top
