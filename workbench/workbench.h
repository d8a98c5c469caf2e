// The development environment as scripts see it: all that may be asked of the
// application, cut by role in the headers beside this one, so that each part of
// the program asks only for the roles it needs. The application fills them in.
// User-interface thread only. Paths are Windows paths in Windows-1252.
#pragma once

#include "workbench/building.h"
#include "workbench/editing.h"
#include "workbench/main_window.h"
#include "workbench/message_list.h"
#include "workbench/paths.h"
#include "workbench/project_content.h"
#include "workbench/projects.h"

namespace workbench {

class EventLog;

class Workbench : public Building,
                  public Editing,
                  public MainWindow,
                  public MessageList,
                  public Paths,
                  public ProjectContent,
                  public Projects {
 public:
  virtual EventLog& events() = 0;

 protected:
  ~Workbench() = default;
};

}  // namespace workbench
