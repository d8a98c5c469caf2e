class Top
{
};
