#include "addon/ide/tool_runs.h"

#include "addon/ide/access.h"
#include "addon/ide/status_line.h"

namespace kesto {
namespace {

int resultOfTool(const char* tool_name, const char* path) {
  const ComPtr<IToolService> service = getService<IToolService>(ideapi::kToolService);
  const ComPtr<IIdeString> name = makeIdeString(tool_name);
  const ComPtr<IIdeString> file = makeIdeString(path);
  if (!service || !name || !file) {
    return kToolNotHandled;
  }
  const ToolHandle tool = service->FindTool(name.get());
  return tool != 0 ? service->RunTool(tool, file.get()) : static_cast<int>(kToolNotHandled);
}

}  // namespace

const char* toolResultText(int result) {
  switch (result) {
    case kToolNotHandled:
      return "Tool non handled";
    case kToolWarnings:
      return "Tool: Warnings";
    case kToolErrors:
      return "Tool: Errors";
    case kToolFatal:
      return "Tool: Fatal error";
    default:
      return nullptr;
  }
}

bool runTool(const char* tool, const char* file) {
  const char* text = toolResultText(resultOfTool(tool, file));
  if (text != nullptr) {
    showStatus(text);
  }
  return text == nullptr;
}

}  // namespace kesto
