#include "canvas.h"

#include <ostream>

Canvas::Canvas(int width, int height) : width_(width), rows_(height) {
  clear();
}

void Canvas::clear() {
  for (size_t row = 0; row < rows_.size(); ++row)
    rows_[row].assign(width_, '.');
}

int Canvas::height() const {
  return static_cast<int>(rows_.size());
}

void Canvas::plot(int x, int y, char ink) {
  if (x < 0 || x >= width_ || y < 0 || y >= height())
    return;
  rows_[y][x] = ink;
}

void Canvas::horizontal(int x, int y, int length, char ink) {
  for (int i = 0; i < length; ++i)
    plot(x + i, y, ink);
}

void Canvas::print(std::ostream& out) const {
  for (size_t row = 0; row < rows_.size(); ++row)
    out << rows_[row] << '\n';
}
