// One add-on DLL: loaded and started before the frame exists, shut down while the
// frame's windows still stand. User-interface thread only.
#pragma once

#include <windows.h>

#include <string>

#include "ideapi/ide_identifiers.h"
#include "ideapi/ide_interfaces.h"

namespace workbench {

class AddonModule {
 public:
  AddonModule() = default;
  ~AddonModule() { unload(); }
  AddonModule(const AddonModule&) = delete;
  AddonModule& operator=(const AddonModule&) = delete;

  // Hands the add-on a reference of the root. On failure returns false with a
  // sentence for the user.
  bool start(const std::string& path, IIde* root, std::string* reason);
  // Lets the add-on shut down; the module stays loaded.
  void shutDown();
  void unload();

 private:
  HMODULE module_ = nullptr;
  ideapi::AddonEntry entry_ = nullptr;
};

}  // namespace workbench
