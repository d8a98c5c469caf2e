// The project window ("BCW5Project"): the project's nodes as a tree. The project
// and the host must outlive it. User-interface thread only.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "workbench/project/project.h"
#include "workbench/project/project_view.h"
#include "workbench/windows/mdi_pane.h"

namespace workbench {

// What the window asks of those around it; commands are the frame's.
class ProjectWindowHost {
 public:
  virtual void openNode(unsigned int node, bool alternative) = 0;
  virtual void renameFromWindow(unsigned int node, const std::string& name) = 0;
  virtual void projectWindowCommand(int id) = 0;
  virtual bool projectCommandEnabled(int id) = 0;

 protected:
  ~ProjectWindowHost() = default;
};

class ProjectWindow final : public MdiPane, public ProjectView {
 public:
  ProjectWindow(const Project& project, ProjectWindowHost& host);

  // Another project, or none.
  void projectChanged();
  // 0 for none, or while the window is closed.
  unsigned int selected() const;
  void select(unsigned int node);
  // Lets the user edit the selected node's name in place.
  void beginRename();

  void nodeAdded(unsigned int node) override;
  void nodeRemoved(unsigned int node) override;
  void nodeChanged(unsigned int node) override;

 protected:
  bool createControls() override;
  void layOut(int width, int height) override;
  RECT firstPlace(const RECT& client) const override;
  HWND focusControl() const override { return tree_; }
  bool paneMessage(UINT message, WPARAM w, LPARAM l, LRESULT* result) override;
  void paneGone() override;

 private:
  void fill();
  // How the window was left when it closed, for as long as the project is the same.
  void remember();
  void restore();
  HTREEITEM itemOf(unsigned int node) const;
  unsigned int nodeOf(HTREEITEM item) const;
  HTREEITEM insert(HTREEITEM parent, const NodeInfo& node);
  void insertAll(HTREEITEM parent, const std::vector<unsigned int>& nodes);
  LRESULT notified(const NMHDR& header);
  void keyPressed(WORD key);
  void later(int command, LPARAM detail);
  void carryOut(int command, LPARAM detail);
  void beginEdit();
  void contextMenu(POINT place);

  const Project& project_;
  ProjectWindowHost& host_;
  HWND tree_ = nullptr;
  std::unordered_map<unsigned int, HTREEITEM> items_;  // by node
  // What was typed for a node and is still to be told.
  unsigned int renamed_node_ = 0;
  std::string new_name_;
  bool left_ = false;  // what follows was remembered
  std::vector<unsigned int> expanded_;
  unsigned int selected_ = 0;
  unsigned int first_visible_ = 0;
};

}  // namespace workbench
