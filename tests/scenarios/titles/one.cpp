void one()
{
}
