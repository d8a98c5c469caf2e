#include "frame.h"
void Frame::Paint(HDC dc);

void Frame::PaintAll(HDC dc)
{
}
