// Draws a small landscape and says how much ink it took.
#include <iostream>

#include "album.h"

static Point at(int x, int y) {
  Point point = {x, y};
  return point;
}

static void addSun(Album& album) {
  album.add(new Circle(at(52, 4), 3));
}

static void addHouse(Album& album, int left) {
  album.add(new Triangle(at(left + 6, 8), 6));
  album.add(new Rectangle(at(left + 2, 14), 9, 5));
}

static void addFirTrees(Album& album, int count) {
  for (int i = 0; i < count; ++i)
    album.add(new Triangle(at(26 + 9 * i, 12 + i % 2), 6));
}

int main() {
  Canvas canvas(64, 20);
  Album album;
  addSun(album);
  addHouse(album, 4);
  addFirTrees(album, 4);
  album.drawAll(canvas);
  canvas.print(std::cout);
  std::cout << album.count() << " shapes, area " << album.totalArea() << "\n";
  return 0;
}
