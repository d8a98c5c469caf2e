int main()
{
    tool(1);
    FooBar x;
}
