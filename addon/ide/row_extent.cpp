#include "addon/ide/row_extent.h"

namespace kesto {

namespace {

int nextStop(int place, const RowMetrics& metrics) {
  for (const int stop : metrics.stops) {
    if (stop > place) {
      return stop;
    }
  }
  return metrics.further > 0 ? (place / metrics.further + 1) * metrics.further : place;
}

}  // namespace

int rowExtent(std::string_view row, const RowMetrics& metrics) {
  int place = 0;
  for (const char c : row) {
    place = c == '\t' ? nextStop(place, metrics)
                      : place + metrics.widths[static_cast<unsigned char>(c)];
  }
  return place;
}

}  // namespace kesto
