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
    Tool tool;
    tool.handle = ++last_handle_;
    tool.name = name;
    tool.own = tool.added = true;
    tools_.push_back(tool);
  }
}

const ToolService::Tool* ToolService::find(const std::string& name) const {
  const auto found = std::find_if(tools_.begin(), tools_.end(), [&name](const Tool& tool) {
    return tool.added && tool.name == name;
  });
  return found == tools_.end() ? nullptr : &*found;
}

const ToolService::Tool* ToolService::find(ToolHandle handle) const {
  const auto found = std::find_if(tools_.begin(), tools_.end(), [handle](const Tool& tool) {
    return tool.added && tool.handle == handle;
  });
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

std::vector<ToolService::Tool>::iterator ToolService::place(ToolHandle handle) {
  return std::find_if(tools_.begin(), tools_.end(),
                      [handle](const Tool& tool) { return tool.handle == handle; });
}

ToolService::Tool* ToolService::unfinished(ToolHandle handle) {
  const auto found = place(handle);
  return found == tools_.end() || found->added ? nullptr : &*found;
}

ToolHandle STDMETHODCALLTYPE ToolService::CreateTool() {
  Tool tool;
  tool.handle = ++last_handle_;
  tools_.push_back(tool);
  return tool.handle;
}

int STDMETHODCALLTYPE ToolService::SetPosition(ToolHandle handle, int position) {
  Tool* tool = unfinished(handle);
  if (tool != nullptr) {
    tool->position = position;
  }
  return tool != nullptr ? 1 : 0;
}

int STDMETHODCALLTYPE ToolService::SetFlags(ToolHandle handle, unsigned int flags) {
  Tool* tool = unfinished(handle);
  if (tool != nullptr) {
    tool->flags = flags;
  }
  return tool != nullptr ? 1 : 0;
}

int ToolService::setText(ToolHandle handle, std::string Tool::*part, IIdeString* text) {
  Tool* tool = unfinished(handle);
  if (tool != nullptr) {
    tool->*part = textOf(text);
  }
  return tool != nullptr ? 1 : 0;
}

int STDMETHODCALLTYPE ToolService::SetName(ToolHandle tool, IIdeString* name) {
  return setText(tool, &Tool::name, name);
}

int STDMETHODCALLTYPE ToolService::SetDescription(ToolHandle tool, IIdeString* description) {
  return setText(tool, &Tool::description, description);
}

int STDMETHODCALLTYPE ToolService::SetMenuText(ToolHandle tool, IIdeString* menu_text) {
  return setText(tool, &Tool::menu_text, menu_text);
}

int STDMETHODCALLTYPE ToolService::SetText(ToolHandle tool, IIdeString* text) {
  return setText(tool, &Tool::text, text);
}

int STDMETHODCALLTYPE ToolService::SetImplementor(ToolHandle handle,
                                                  IToolImplementor* implementor) {
  Tool* tool = unfinished(handle);
  void* known = nullptr;
  if (tool == nullptr || (implementor != nullptr &&
                          implementor->QueryInterface(ideapi::kToolImplementor, &known) != S_OK)) {
    return 0;
  }
  IToolImplementor* former = tool->implementor;
  tool->implementor = static_cast<IToolImplementor*>(known);
  if (former != nullptr) {
    former->Release();
  }
  return 1;
}

int STDMETHODCALLTYPE ToolService::AddTool(ToolHandle handle) {
  Tool* tool = unfinished(handle);
  if (tool == nullptr || tool->name.empty() || tool->implementor == nullptr ||
      find(tool->name) != nullptr) {
    return 0;
  }
  tool->added = true;
  // Tools of one position stand in the order of adding, which is not that of creating.
  std::rotate(place(handle), place(handle) + 1, tools_.end());
  const Tool& last = tools_.back();
  context_.log.emit(Event("tool-added")
                        .text("name", last.name)
                        .number("position", last.position)
                        .number("flags", static_cast<long>(last.flags))
                        .text("description", last.description)
                        .text("menu", last.menu_text)
                        .text("text", last.text));
  if (menu_changed_) {
    menu_changed_();
  }
  return 1;
}

int STDMETHODCALLTYPE ToolService::DeleteTool(ToolHandle handle) {
  const auto found = place(handle);
  if (found == tools_.end() || found->own) {
    return 0;
  }
  const Tool gone = *found;
  tools_.erase(found);
  if (gone.added) {
    context_.log.emit(Event("tool-deleted").text("name", gone.name));
  }
  if (gone.added && menu_changed_) {
    menu_changed_();
  }
  if (gone.implementor != nullptr) {
    gone.implementor->Release();
  }
  return 1;
}

std::vector<ToolService::MenuTool> ToolService::menuTools() const {
  std::vector<const Tool*> shown;
  for (const Tool& tool : tools_) {
    if (tool.added && (tool.flags & kToolInMenu) != 0) {
      shown.push_back(&tool);
    }
  }
  // As unsigned numbers those counted from the end come behind the others, -1 last.
  std::stable_sort(shown.begin(), shown.end(), [](const Tool* one, const Tool* other) {
    return static_cast<unsigned>(one->position) < static_cast<unsigned>(other->position);
  });
  std::vector<MenuTool> result;
  for (const Tool* tool : shown) {
    result.push_back({tool->handle, tool->menu_text.empty() ? tool->name : tool->menu_text,
                      tool->description, (tool->flags & kToolWithoutFile) != 0});
  }
  return result;
}

std::size_t ToolService::addonTools() const {
  return static_cast<std::size_t>(
      std::count_if(tools_.begin(), tools_.end(), [](const Tool& tool) { return !tool.own; }));
}

}  // namespace workbench
