// A sheet of characters to draw on.
#ifndef CANVAS_H
#define CANVAS_H

#include <iosfwd>
#include <string>
#include <vector>

class Canvas {
 public:
  Canvas(int width, int height);

  void clear();
  // Points beside the sheet are left out.
  void plot(int x, int y, char ink);
  void horizontal(int x, int y, int length, char ink);
  void print(std::ostream& out) const;

  int width() const { return width_; }
  int height() const;

 private:
  int width_;
  std::vector<std::string> rows_;
};

#endif
