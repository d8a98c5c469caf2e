#include "shape.h"

int counted = 0;

void count()
{
  counted = counted + area(counted);
}

int main()
{
  count();
  return counted;
}
