// Paint is called here, and defined below.
int main()
{
    Paint(0);
    return nothing;
}
