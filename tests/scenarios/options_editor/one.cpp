int f00(int n)
{
  return n;
}
int f01(int n)
{
  return n;
}
int f02(int n)
{
  return n;
}
int f03(int n)
{
  return n;
}
int f04(int n)
{
  return n;
}
int f05(int n)
{
  return n;
}
int f06(int n)
{
  return n;
}
int f07(int n)
{
  return n;
}
int f08(int n)
{
  return n;
}
int f09(int n)
{
  return n;
}
int f10(int n)
{
  return n;
}
int f11(int n)
{
  return n;
}
