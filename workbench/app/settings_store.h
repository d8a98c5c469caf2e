// The user's settings of the Workbench, kept between runs.
#pragma once

#include <string>
#include <vector>

#include "workbench/editor/editor_settings.h"

namespace workbench {

// Values that are missing or out of range leave the setting as it is.
void loadSettings(EditorSettings* settings);
void saveSettings(const EditorSettings& settings);

// The paths used last, the latest first.
std::vector<std::string> loadRecent();
void saveRecent(const std::vector<std::string>& paths);

}  // namespace workbench
