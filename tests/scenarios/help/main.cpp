#include "main.h"

void Frame::Paint()
{
}

int main()
{
}
