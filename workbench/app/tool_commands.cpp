// The Tool menu: what add-ons offer in it, and what its items do.
#include "workbench/app/application.h"
#include "workbench/windows/command_ids.h"

namespace workbench {

void Application::showTools() {
  if (frame_.window() == nullptr) {
    return;
  }
  menu_tools_ = root_.tools().menuTools();
  std::vector<std::string> texts;
  for (const ToolService::MenuTool& tool : menu_tools_) {
    texts.push_back(tool.text);
  }
  frame_.setTools(texts);
}

const ToolService::MenuTool* Application::toolOf(int id) const {
  const int position = id - CM_FIRST_TOOL;
  const bool there = position >= 0 && static_cast<std::size_t>(position) < menu_tools_.size();
  return there ? &menu_tools_[static_cast<std::size_t>(position)] : nullptr;
}

std::string Application::fileInWork() {
  if (EditorChild* child = editors_.active()) {
    return child->file();
  }
  const NodeInfo* info =
      project_window_.active() ? project_.node(project_window_.selected()) : nullptr;
  return info != nullptr ? info->name : std::string();
}

bool Application::toolEnabled(const ToolService::MenuTool& tool) {
  return tool.without_file || !fileInWork().empty();
}

bool Application::toolCommand(int id) {
  const ToolService::MenuTool* tool = toolOf(id);
  if (tool == nullptr) {
    return false;
  }
  if (toolEnabled(*tool)) {
    root_.tools().runFromMenu(tool->handle, tool->without_file ? "" : fileInWork());
  }
  return true;
}

void Application::commandHighlighted(int id) {
  const ToolService::MenuTool* tool = toolOf(id);
  const std::string hint = tool != nullptr ? tool->description : std::string();
  frame_.statusBar().setHint(hint);
  if (!hint.empty()) {
    events_.emit(Event("status").text("text", hint));
  }
}

}  // namespace workbench
