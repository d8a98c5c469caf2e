#include "addon/topbar/placement.h"

namespace kesto {
namespace {

constexpr int kAboveScreen = 2;
constexpr int kRoomBelow = 80;

int topOf(const ScreenMetrics& metrics, bool new_shell) {
  return new_shell ? -kAboveScreen : -kAboveScreen - metrics.menu_height;
}

int oneRow(const ScreenMetrics& metrics, bool new_shell) {
  return metrics.menu_height + (new_shell ? 0 : metrics.caption_height) + 1;
}

}  // namespace

BarPlacement creationPlacement(const ScreenMetrics& metrics, bool new_shell) {
  return {-1, topOf(metrics, new_shell), metrics.screen_width + 2, oneRow(metrics, new_shell)};
}

BarPlacement normalPlacement(const ScreenMetrics& metrics, bool new_shell, int left_margin,
                             int right_margin) {
  return {left_margin, topOf(metrics, new_shell), metrics.screen_width - left_margin - right_margin,
          oneRow(metrics, new_shell)};
}

int highestBar(const ScreenMetrics& metrics) {
  return metrics.screen_height - kRoomBelow;
}

int expandedHeight(int reached_height, int client_height) {
  return reached_height - (client_height + 1);
}

}  // namespace kesto
