// Opening, saving and closing projects. User-interface thread only.
#pragma once

#include <string>

namespace workbench {

class Projects {
 public:
  // Opens a project file, a folder as a project, or a source file in an editor. A
  // project that is open is closed first. Returns false when it cannot be opened,
  // or when the user kept an unsaved file; the reason has been shown.
  virtual bool openPath(const std::string& path) = 0;
  // Makes a project of the folder's sources, saves it there, and opens it. False
  // when that cannot be done (the reason has been shown) or the user declined.
  virtual bool newProject(const std::string& folder) = 0;
  // Writes the project's file after its save clients have been told. False
  // without a project, or when it was not written (the reason has been shown).
  virtual bool saveProject() = 0;
  // Returns false when the user kept an unsaved file.
  virtual bool closeProject() = 0;
  virtual bool hasProject() = 0;

 protected:
  ~Projects() = default;
};

}  // namespace workbench
