#include "addon/topbar/project_options.h"

#include "addon/topbar/top_bar.h"

namespace kesto {
namespace {

constexpr char kConstruction[] = "Kesto_HIERARCH";
constexpr char kHidesWithView[] = "Kesto_HIDEWITHVIEW";

}  // namespace

void readBarConstruction(ProjectOptionStore& store) {
  if (topBar != nullptr) {
    IntegerOption option{kConstruction, static_cast<int>(topBar->construction())};
    option.read(store);
    topBar->useConstruction(option.value);
  }
}

void readBarHidesWithView(ProjectOptionStore& store) {
  if (topBar != nullptr) {
    IntegerOption option{kHidesWithView, 0};
    option.read(store);
    topBar->useHidesWithView(option.value);
  }
}

void writeBarConstruction(ProjectOptionStore& store) {
  if (topBar != nullptr) {
    writeInteger(store, kConstruction, static_cast<int>(topBar->construction()));
  }
}

void writeBarHidesWithView(ProjectOptionStore& store) {
  if (topBar != nullptr) {
    writeInteger(store, kHidesWithView, topBar->hidesWithView() ? 1 : 0);
  }
}

}  // namespace kesto
