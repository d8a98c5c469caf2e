int deep()
{
}
