int Frame::Size(void)
{
    Paint(1);
    return Paint(2);
}
