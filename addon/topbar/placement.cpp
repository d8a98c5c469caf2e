#include "addon/topbar/placement.h"

namespace kesto {
namespace {

constexpr int kAboveScreen = 2;
constexpr int kRoomBelow = 80;

int topOf(const ScreenMetrics& metrics, bool newShell) {
  return newShell ? -kAboveScreen : -kAboveScreen - metrics.menuHeight;
}

int oneRow(const ScreenMetrics& metrics, bool newShell) {
  return metrics.menuHeight + (newShell ? 0 : metrics.captionHeight) + 1;
}

}  // namespace

BarPlacement creationPlacement(const ScreenMetrics& metrics, bool newShell) {
  return {-1, topOf(metrics, newShell), metrics.screenWidth + 2, oneRow(metrics, newShell)};
}

BarPlacement normalPlacement(const ScreenMetrics& metrics, bool newShell, int leftMargin,
                             int rightMargin) {
  return {leftMargin, topOf(metrics, newShell), metrics.screenWidth - leftMargin - rightMargin,
          oneRow(metrics, newShell)};
}

int highestBar(const ScreenMetrics& metrics) { return metrics.screenHeight - kRoomBelow; }

int expandedHeight(int reachedHeight, int clientHeight) {
  return reachedHeight - (clientHeight + 1);
}

}  // namespace kesto
