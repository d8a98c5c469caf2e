// The user's settings of the Workbench, kept between runs.
#pragma once

#include "workbench/editor/editor_settings.h"

namespace workbench {

// Values that are missing or out of range leave the setting as it is.
void loadSettings(EditorSettings* settings);
void saveSettings(const EditorSettings& settings);

}  // namespace workbench
