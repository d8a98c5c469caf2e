#include "sample.h"

// int commented()
int main(void)
{
    return prepare(1);
}

Frame::Frame(int width)
{
}

Frame::~Frame()
{
}

static char *Name(const char* text)
{
    return 0;
}

int declared(int);

void Frame::Paint (HDC dc)
{
}

Foo& Foo::operator=(const Foo& other)
{
    return *this;
}
