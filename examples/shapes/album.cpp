#include "album.h"

Album::~Album() {
  for (size_t i = 0; i < shapes_.size(); ++i)
    delete shapes_[i];
}

void Album::add(Shape* shape) {
  shapes_.push_back(shape);
}

void Album::drawAll(Canvas& canvas) const {
  for (size_t i = 0; i < shapes_.size(); ++i)
    shapes_[i]->draw(canvas);
}

double Album::totalArea() const {
  double total = 0;
  for (size_t i = 0; i < shapes_.size(); ++i)
    total += shapes_[i]->area();
  return total;
}

int Album::count() const {
  return static_cast<int>(shapes_.size());
}
