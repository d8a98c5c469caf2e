// What every shape can do: say where it is, how big it is, and draw itself.
#ifndef SHAPE_H
#define SHAPE_H

#include "canvas.h"

struct Point {
  int x;
  int y;
};

class Shape {
 public:
  explicit Shape(Point where) : where_(where) {}
  virtual ~Shape();

  virtual double area() const = 0;
  virtual void draw(Canvas& canvas) const = 0;

  void moveBy(int dx, int dy);
  Point where() const { return where_; }

 protected:
  Point where_;
};

class Circle : public Shape {
 public:
  Circle(Point centre, int radius);
  double area() const;
  void draw(Canvas& canvas) const;

 private:
  int radius_;
};

class Rectangle : public Shape {
 public:
  Rectangle(Point corner, int width, int height);
  double area() const;
  void draw(Canvas& canvas) const;

 private:
  int width_;
  int height_;
};

class Triangle : public Shape {
 public:
  Triangle(Point tip, int height);
  double area() const;
  void draw(Canvas& canvas) const;

 private:
  int height_;
};

#endif
