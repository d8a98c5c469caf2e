// A collection of shapes, which it owns.
#ifndef ALBUM_H
#define ALBUM_H

#include <vector>

#include "shape.h"

class Album {
 public:
  Album() {}
  ~Album();

  void add(Shape* shape);
  void drawAll(Canvas& canvas) const;
  double totalArea() const;
  int count() const;

 private:
  Album(const Album&);
  Album& operator=(const Album&);

  std::vector<Shape*> shapes_;
};

#endif
