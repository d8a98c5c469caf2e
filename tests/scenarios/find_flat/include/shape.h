class Shape : public Base
{
};
class FooBar : public Foo
{
};
