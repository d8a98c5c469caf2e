// The tools of the IDE: its own and those that add-ons bring. User-interface thread only.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "workbench/services/counted.h"
#include "workbench/services/service_context.h"

namespace workbench {

class ToolService final : public Service<IToolService> {
 public:
  // A tool of the Tool menu.
  struct MenuTool {
    ToolHandle handle;
    std::string text;
    std::string description;
    bool without_file;
  };

  explicit ToolService(const ServiceContext& context);

  ToolHandle STDMETHODCALLTYPE FindTool(IIdeString* name) override;
  ToolHandle STDMETHODCALLTYPE CreateTool() override;
  int STDMETHODCALLTYPE SetPosition(ToolHandle tool, int position) override;
  int STDMETHODCALLTYPE SetName(ToolHandle tool, IIdeString* name) override;
  int STDMETHODCALLTYPE SetFlags(ToolHandle tool, unsigned int flags) override;
  int STDMETHODCALLTYPE SetDescription(ToolHandle tool, IIdeString* description) override;
  int STDMETHODCALLTYPE SetMenuText(ToolHandle tool, IIdeString* menu_text) override;
  int STDMETHODCALLTYPE SetText(ToolHandle tool, IIdeString* text) override;
  int STDMETHODCALLTYPE SetImplementor(ToolHandle tool, IToolImplementor* implementor) override;
  int STDMETHODCALLTYPE AddTool(ToolHandle tool) override;
  int STDMETHODCALLTYPE DeleteTool(ToolHandle tool) override;
  int STDMETHODCALLTYPE RunTool(ToolHandle tool, IIdeString* file) override;

  int run(const std::string& name, const std::string& file);
  // Runs a tool of the menu; an empty file is none.
  void runFromMenu(ToolHandle tool, const std::string& file);
  // In the order of the menu.
  std::vector<MenuTool> menuTools() const;
  // Called when a tool of the menu came or went.
  void setMenuListener(std::function<void()> listener) { menu_changed_ = std::move(listener); }
  // The tools that add-ons have made and not deleted.
  std::size_t addonTools() const;

 private:
  struct Tool {
    ToolHandle handle = 0;
    std::string name;
    bool own = false;  // the IDE's
    bool added = false;
    int position = 0;
    unsigned int flags = 0;
    std::string description;
    std::string menu_text;
    std::string text;
    IToolImplementor* implementor = nullptr;
  };

  // Those that were added.
  const Tool* find(const std::string& name) const;
  const Tool* find(ToolHandle handle) const;
  std::vector<Tool>::iterator place(ToolHandle handle);
  // The tool that is still being put together, or null.
  Tool* unfinished(ToolHandle handle);
  int setText(ToolHandle handle, std::string Tool::*part, IIdeString* text);
  int runOwn(const std::string& name, const std::string& file);
  void addView(const std::string& file);
  int runTool(const Tool* tool, IIdeString* file);
  int view(const std::string& file);
  bool openWithSystem(const std::string& file);

  ServiceContext context_;
  std::vector<Tool> tools_;
  ToolHandle last_handle_ = 0;
  std::function<void()> menu_changed_;
};

}  // namespace workbench
