// Running the IDE's tools.
#pragma once

namespace kesto {

// The status text of a tool's result, null for a success.
const char* toolResultText(int result);

// Runs the tool of that name on the file. A result that is no success is told on
// the status line and gives false.
bool runTool(const char* tool, const char* file);

}  // namespace kesto
