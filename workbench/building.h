// Makes, as a script asks for them. User-interface thread only.
#pragma once

namespace workbench {

class Building {
 public:
  // Saves what is modified and starts the build command; its output and its end
  // come later. False when it could not start with it: no project, a make that is
  // running, or a file that was not saved.
  virtual bool startMake() = 0;
  // Tells the make clients that a make started and ended with this MakeResult.
  virtual void make(int result) = 0;

 protected:
  ~Building() = default;
};

}  // namespace workbench
