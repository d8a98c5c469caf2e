// A part of the workshop's stock.
#pragma once

struct Part {
  const char* name;
  int length;  // millimetres
};
