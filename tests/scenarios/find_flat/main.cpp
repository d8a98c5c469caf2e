int main()
{
    tool(1);
}
