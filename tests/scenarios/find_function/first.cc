void Paint(int where)
{
}
