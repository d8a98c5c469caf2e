
int Window::Paint(int)
{
}

void Other::Paint(long)
{
}
