#include "frame.h"

void Frame::Paint(HDC dc)
{
}
