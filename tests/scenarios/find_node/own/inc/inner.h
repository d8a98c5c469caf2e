class Inner
{
};
