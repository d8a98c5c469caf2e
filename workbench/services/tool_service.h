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
  };

  explicit ToolService(const ServiceContext& context);

  ToolHandle STDMETHODCALLTYPE FindTool(IIdeString* name) override;
  int STDMETHODCALLTYPE RunTool(ToolHandle tool, IIdeString* file) override;
  ToolHandle STDMETHODCALLTYPE AddTool(IIdeString* name, IIdeString* menu_text,
                                       IToolImplementor* implementor) override;
  void STDMETHODCALLTYPE RemoveTool(ToolHandle tool) override;

  int run(const std::string& name, const std::string& file);
  // Runs a tool of the menu; an empty file is none.
  void runFromMenu(ToolHandle tool, const std::string& file);
  std::vector<MenuTool> menuTools() const;
  // Called when a tool of the menu came or went.
  void setMenuListener(std::function<void()> listener) { menu_changed_ = std::move(listener); }
  std::size_t implementors() const;

 private:
  struct Tool {
    ToolHandle handle;
    std::string name;
    std::string menu_text;
    IToolImplementor* implementor;  // null for the IDE's own
  };

  const Tool* find(const std::string& name) const;
  const Tool* find(ToolHandle handle) const;
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
