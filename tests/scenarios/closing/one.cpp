#include "one.h"
int first(int a)
{
  return a;
}
void Frame::paint()
{
}
void Window::paint()
{
}
