#include "addon/topbar/placement.h"

#include <algorithm>

namespace kesto {
namespace {

constexpr int kAboveScreen = 2;
constexpr int kRoomBelow = 80;
constexpr int kFarthest = 0x7FFF;

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
  // Margins are whatever somebody entered; coordinates have 16 bits on Windows 95.
  const int left = std::clamp(left_margin, -kFarthest, kFarthest);
  const int right = std::clamp(right_margin, -kFarthest, kFarthest);
  const int width = std::clamp(metrics.screen_width - left - right, 0, kFarthest);
  return {left, topOf(metrics, new_shell), width, oneRow(metrics, new_shell)};
}

int highestBar(const ScreenMetrics& metrics) {
  return metrics.screen_height - kRoomBelow;
}

int expandedHeight(int reached_height, int client_height) {
  return reached_height - (client_height + 1);
}

}  // namespace kesto
