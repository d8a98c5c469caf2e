#include "a.h"
int main(void)
