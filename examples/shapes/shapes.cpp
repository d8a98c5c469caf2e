// The shapes themselves.
#include "shape.h"

#include <cmath>

static const double kPi = 3.14159265358979;

Shape::~Shape() {}

void Shape::moveBy(int dx, int dy) {
  where_.x += dx;
  where_.y += dy;
}

// A character is about twice as high as it is wide.
static bool inside(int dx, int dy, int radius) {
  return dx * dx / 4 + dy * dy <= radius * radius;
}

Circle::Circle(Point centre, int radius) : Shape(centre), radius_(radius) {}

double Circle::area() const {
  return kPi * radius_ * radius_;
}

void Circle::draw(Canvas& canvas) const {
  for (int dy = -radius_; dy <= radius_; ++dy)
    for (int dx = -2 * radius_; dx <= 2 * radius_; ++dx)
      if (inside(dx, dy, radius_))
        canvas.plot(where_.x + dx, where_.y + dy, 'o');
}

Rectangle::Rectangle(Point corner, int width, int height)
    : Shape(corner), width_(width), height_(height) {}

double Rectangle::area() const {
  return static_cast<double>(width_) * height_;
}

void Rectangle::draw(Canvas& canvas) const {
  for (int row = 0; row < height_; ++row)
    canvas.horizontal(where_.x, where_.y + row, width_, '#');
}

Triangle::Triangle(Point tip, int height) : Shape(tip), height_(height) {}

double Triangle::area() const {
  return static_cast<double>(height_) * height_;
}

void Triangle::draw(Canvas& canvas) const {
  for (int row = 0; row < height_; ++row)
    canvas.horizontal(where_.x - row, where_.y + row, 2 * row + 1, '^');
}
