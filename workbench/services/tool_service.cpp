#include "workbench/services/tool_service.h"

#include <shellapi.h>

#include <algorithm>

#include "workbench/editing.h"
#include "workbench/editor/editor_set.h"
#include "workbench/events/event_log.h"
#include "workbench/main_window.h"
#include "workbench/paths.h"
#include "workbench/project/tool_table.h"
#include "workbench/projects.h"
#include "workbench/services/client_list.h"
#include "workbench/services/ide_string.h"
#include "workbench/windows/path_text.h"

namespace workbench {

ToolService::ToolService(const ServiceContext& context)
    : Service(context.live, "tool service", ideapi::kToolService), context_(context) {
  for (const char* name : kOwnTools) {
    tools_.push_back({++last_handle_, name, "", nullptr});
  }
}

const ToolService::Tool* ToolService::find(const std::string& name) const {
  const auto found = std::find_if(tools_.begin(), tools_.end(),
                                  [&name](const Tool& tool) { return tool.name == name; });
  return found == tools_.end() ? nullptr : &*found;
}

const ToolService::Tool* ToolService::find(ToolHandle handle) const {
  const auto found = std::find_if(tools_.begin(), tools_.end(),
                                  [handle](const Tool& tool) { return tool.handle == handle; });
  return found == tools_.end() ? nullptr : &*found;
}

ToolHandle STDMETHODCALLTYPE ToolService::FindTool(IIdeString* name) {
  const Tool* tool = find(textOf(name));
  return tool != nullptr ? tool->handle : 0;
}

int STDMETHODCALLTYPE ToolService::RunTool(ToolHandle handle, IIdeString* file) {
  const Tool* tool = find(handle);
  if (tool != nullptr && tool->name == kEditTool) {
    addView(textOf(file));
  }
  return runTool(tool, file);
}

// Who asks from outside has looked for an editor already; the project's own window has not.
void ToolService::addView(const std::string& file) {
  EditorChild* shown = file.empty() ? nullptr : context_.editors.find(context_.paths.resolve(file));
  if (shown != nullptr) {
    context_.editors.newView(*shown);
  }
}

int ToolService::run(const std::string& name, const std::string& file) {
  IIdeString* text = handOut(context_.live, file);
  const int result = runTool(find(name), text);
  text->Release();
  return result;
}

void ToolService::runFromMenu(ToolHandle handle, const std::string& file) {
  IIdeString* text = file.empty() ? nullptr : handOut(context_.live, file);
  runTool(find(handle), text);
  if (text != nullptr) {
    text->Release();
  }
}

int ToolService::runTool(const Tool* tool, IIdeString* file) {
  if (tool == nullptr) {
    return kToolNotHandled;
  }
  // The tool may be removed while it runs.
  const std::string name = tool->name;
  const std::string path = textOf(file);
  int result = kToolNotHandled;
  if (tool->implementor == nullptr) {
    result = runOwn(name, path);
  } else {
    const Held<IToolImplementor> implementor(tool->implementor);
    result = implementor->Run(file);
  }
  context_.log.emit(Event("tool").text("name", name).text("file", path).number("result", result));
  return result;
}

int ToolService::runOwn(const std::string& name, const std::string& file) {
  if (file.empty()) {
    return kToolNotHandled;
  }
  if (name == kEditTool) {
    return context_.editing.editOrStart(file) != nullptr ? kToolDone : kToolErrors;
  }
  if (name == "Project") {
    return context_.projects.openPath(file) ? kToolDone : kToolErrors;
  }
  if (name == "RunExecutable") {
    return openWithSystem(context_.paths.resolve(file)) ? kToolDone : kToolErrors;
  }
  if (name == "ClassExpert") {
    return kToolNotHandled;
  }
  return view(context_.paths.resolve(file));
}

// Resource scripts are texts; the rest is for whatever program the system has.
int ToolService::view(const std::string& file) {
  const std::string type = foldCase(extensionOf(file));
  if (type == ".rc" || type == ".dlg" || type == ".rh") {
    return context_.editing.editOrStart(file) != nullptr ? kToolDone : kToolErrors;
  }
  return openWithSystem(file) ? kToolDone : kToolNotHandled;
}

bool ToolService::openWithSystem(const std::string& file) {
  const std::string folder(folderOf(file));
  SHELLEXECUTEINFOA info = {};
  info.cbSize = sizeof info;
  info.fMask = SEE_MASK_FLAG_NO_UI;
  info.hwnd = context_.window.frame();
  info.lpVerb = "open";
  info.lpFile = file.c_str();
  info.lpDirectory = folder.c_str();
  info.nShow = SW_SHOWNORMAL;
  return ShellExecuteExA(&info) != 0;
}

ToolHandle STDMETHODCALLTYPE ToolService::AddTool(IIdeString* name, IIdeString* menu_text,
                                                  IToolImplementor* implementor) {
  const std::string tool_name = textOf(name);
  if (tool_name.empty() || implementor == nullptr || find(tool_name) != nullptr) {
    return 0;
  }
  implementor->AddRef();
  tools_.push_back({++last_handle_, tool_name, textOf(menu_text), implementor});
  if (menu_changed_) {
    menu_changed_();
  }
  return last_handle_;
}

void STDMETHODCALLTYPE ToolService::RemoveTool(ToolHandle handle) {
  const Tool* tool = find(handle);
  if (tool == nullptr || tool->implementor == nullptr) {
    return;
  }
  IToolImplementor* implementor = tool->implementor;
  std::erase_if(tools_, [handle](const Tool& each) { return each.handle == handle; });
  implementor->Release();
  if (menu_changed_) {
    menu_changed_();
  }
}

std::vector<ToolService::MenuTool> ToolService::menuTools() const {
  std::vector<MenuTool> result;
  for (const Tool& tool : tools_) {
    if (tool.implementor != nullptr) {
      result.push_back({tool.handle, tool.menu_text.empty() ? tool.name : tool.menu_text});
    }
  }
  return result;
}

std::size_t ToolService::implementors() const {
  return menuTools().size();
}

}  // namespace workbench
