int main()
{
    deep();
}

