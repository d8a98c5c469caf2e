void Frame::Paint()
{
}

int Frame::Size()
{
    return Paint();
}
