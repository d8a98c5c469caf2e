// The dialogs about nodes of the project and its build command. User-interface
// thread only; false when the user cancelled.
#pragma once

#include <windows.h>

#include <string>

namespace workbench {

struct NodeFields {
  std::string name;
  std::string type;
  std::string description;
  std::string include;  // folders with ";" between them
  std::string source;
};

// A new node's type may be chosen, another's stays.
bool askNode(HWND owner, bool is_new, NodeFields* fields);
bool askBuild(HWND owner, std::string* command);

}  // namespace workbench
