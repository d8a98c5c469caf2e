class Shape : public Base
{
};
