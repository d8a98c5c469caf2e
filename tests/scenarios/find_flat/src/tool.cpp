int tool(int)
{
    local();
}

void Shape::draw()
{
}

class Inner {
};
