// The strip of tabs below the messages ("OWL_NoteTab"), a tab a group. The object
// outlives its window. User-interface thread only.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace workbench {

class NoteTab {
 public:
  static constexpr int kHeight = 22;  // pixels

  // Called when a click chooses a tab.
  explicit NoteTab(std::function<void(int)> chosen) : chosen_(std::move(chosen)) {}
  ~NoteTab();
  NoteTab(const NoteTab&) = delete;
  NoteTab& operator=(const NoteTab&) = delete;

  static bool registerClass(HINSTANCE instance);
  bool create(HWND parent, HINSTANCE instance);
  HWND window() const { return window_; }
  void setTabs(const std::vector<std::string>& names, int selected);

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l);
  // Tabs stand from the left edge on; they shrink evenly when there is no room.
  std::vector<RECT> places() const;
  void paint();
  void click(POINT point);

  std::function<void(int)> chosen_;
  HWND window_ = nullptr;
  std::vector<std::string> names_;
  int selected_ = 0;
};

}  // namespace workbench
