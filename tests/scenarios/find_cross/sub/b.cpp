int g()
{
    return Paint(3);
}

void once()
{
    only();
}
