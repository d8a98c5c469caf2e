// The whole program without its message loop, on a folder of its own, for tests
// with real windows and files.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "doctest.h"
#include "ideapi/ide_identifiers.h"
#include "ideapi/ide_interfaces.h"
#include "workbench/app/application.h"
#include "workbench/windows/path_text.h"

namespace workbench {

inline void writeFile(const std::string& path, const std::string& bytes) {
  DiskStore store;
  REQUIRE(store.write(path, bytes) == FileFault::kNone);
}

// A folder with a file or two, gone at the end.
class ScratchFolder {
 public:
  ScratchFolder() {
    char base[MAX_PATH] = {};
    char name[MAX_PATH] = {};
    GetTempPathA(sizeof base, base);
    GetTempFileNameA(base, "wbt", 0, name);
    DeleteFileA(name);
    CreateDirectoryA(name, nullptr);
    char full[MAX_PATH] = {};
    GetLongPathNameA(name, full, sizeof full);
    path_ = full;
    CreateDirectoryA(file("inc").c_str(), nullptr);
    writeFile(file("a.cpp"), "first\r\nsecond word\r\nthird\r\n");
    writeFile(file("inc\\b.h"), "int b;\n");
  }
  ~ScratchFolder() {
    for (const char* name : {"a.cpp", "inc\\b.h"}) {
      SetFileAttributesA(file(name).c_str(), FILE_ATTRIBUTE_NORMAL);
      DeleteFileA(file(name).c_str());
    }
    DeleteFileA(projectFile().c_str());
    RemoveDirectoryA(file("inc").c_str());
    RemoveDirectoryA(path_.c_str());
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::string& path() const { return path_; }
  // What the folder's project is called.
  std::string projectFile() const { return Project::fileFor(path_); }
  std::string file(const std::string& name) const { return joinPath(path_, name); }

 private:
  std::string path_;
};

// What is given back at the end.
struct Releases {
  template <typename Interface>
  void operator()(Interface* held) const {
    held->Release();
  }
};
template <typename Interface>
using Taken = std::unique_ptr<Interface, Releases>;

// The program without its message loop, its events kept.
class Program {
 public:
  Program() {
    application.events().setOutput(false);
    application.events().setListener([this](const Event& event) { events.push_back(event); });
    REQUIRE(application.createFrame(GetModuleHandleA(nullptr), false));
  }
  ~Program() { close(); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  void close() {
    if (application.frame() != nullptr) {
      PostQuitMessage(0);
      application.run();
      UnregisterClassA(ideapi::kFrameClass, GetModuleHandleA(nullptr));
      UnregisterClassA(ideapi::kEditorClass, GetModuleHandleA(nullptr));
      UnregisterClassA(ideapi::kEditorTextClass, GetModuleHandleA(nullptr));
      UnregisterClassA(ideapi::kStatusClass, GetModuleHandleA(nullptr));
    }
  }
  IIde* ide() { return application.ide(); }
  template <typename Interface>
  Interface* service(const GUID& id) {
    void* result = nullptr;
    REQUIRE(ide()->QueryInterface(id, &result) == 0);
    return static_cast<Interface*>(result);
  }
  template <typename Interface>
  Taken<Interface> held(const GUID& id) {
    return Taken<Interface>(service<Interface>(id));
  }
  Taken<IIdeString> text(const std::string& value) {
    Taken<IIdeString> string(ide()->CreateIdeString());
    string->SetText(value.c_str());
    return string;
  }
  const Event* last(const std::string& name) const {
    for (auto event = events.rbegin(); event != events.rend(); ++event) {
      if (event->name() == name) {
        return &*event;
      }
    }
    return nullptr;
  }

  Application application;
  std::vector<Event> events;
};

// The program with a folder open.
struct OpenFolder {
  OpenFolder() { REQUIRE(application.openPath(folder.path())); }

  ScratchFolder folder;
  Program program;
  Application& application = program.application;
};

}  // namespace workbench
