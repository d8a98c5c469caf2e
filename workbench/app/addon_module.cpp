#include "workbench/app/addon_module.h"

namespace workbench {
namespace {

std::string systemText(DWORD error) {
  char text[512] = {};
  const DWORD size = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                    nullptr, error, 0, text, sizeof text, nullptr);
  std::string result(text, size);
  while (!result.empty() && static_cast<unsigned char>(result.back()) <= ' ') {
    result.pop_back();
  }
  return result.empty() ? "Error " + std::to_string(error) : result;
}

}  // namespace

bool AddonModule::start(const std::string& path, IIde* root, std::string* reason) {
  module_ = LoadLibraryA(path.c_str());
  if (module_ == nullptr) {
    *reason = "The add-on " + path + " cannot be loaded.\n\n" + systemText(GetLastError());
    return false;
  }
  entry_ = reinterpret_cast<ideapi::AddonEntry>(
      reinterpret_cast<void*>(GetProcAddress(module_, ideapi::kAddonEntryName)));
  if (entry_ == nullptr) {
    *reason = path + " is not an add-on: it has no entry \"" + ideapi::kAddonEntryName + "\".";
    unload();
    return false;
  }
  root->AddRef();
  entry_(static_cast<int>(reinterpret_cast<INT_PTR>(root)));
  return true;
}

void AddonModule::shutDown() {
  if (entry_ != nullptr) {
    entry_(0);
    entry_ = nullptr;
  }
}

void AddonModule::unload() {
  shutDown();
  if (module_ != nullptr) {
    FreeLibrary(module_);
    module_ = nullptr;
  }
}

}  // namespace workbench
