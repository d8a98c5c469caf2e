// The message hooks on the IDE's user-interface thread. They turn clicks on
// editor title bars, new windows, activation and shortcut keys into WM_COMMAND
// messages posted to the bar window. User-interface thread only; one set at a time.
#pragma once

#include <windows.h>

#include "addon/foundation/path.h"

namespace kesto {

// Commands that the hooks post.
inline constexpr int kCommandEditorCreated = 101;
inline constexpr int kCommandComplete = 102;
inline constexpr int kCommandRebuildMenu = 103;
inline constexpr int kCommandPaintButtons = 111;
inline constexpr int kCommandIncludes = 187;
inline constexpr int kCommandQuickFind = 188;
inline constexpr int kCommandFunctions = 189;
inline constexpr int kCommandFirstSearchKey = 190;
inline constexpr int kCommandTitleMenu = 197;

inline constexpr int kSearchKeyCount = 4;

// Message to the window that captures a key: virtual key and the key message's lParam.
inline constexpr UINT kCapturedKeyMessage = WM_USER + 1;

// The key code of a key message, with what is held down beside the key.
unsigned pressedKeyCode(UINT virtual_key, LPARAM lParam);

// What the hooks ask of the features above. Every answer may change between two calls.
class HookHost {
 public:
  virtual ~HookHost() = default;

  // Whether the title-bar menus are switched on.
  virtual bool navigationEnabled() const = 0;
  // The title-bar button of the editor under the screen point, or -1. On a hit
  // the point becomes the place for the button's popup.
  virtual int titleButtonAt(HWND editor, POINT& point) const = 0;
  // The key code that completes a word, 0 when the key is an ordinary one.
  virtual unsigned completionKey() const = 0;
  // The key code of search 0 to kSearchKeyCount - 1, 0 for none.
  virtual unsigned searchKey(int search) const = 0;

  // Whether the bar hides and comes back with the IDE's frame.
  virtual bool barFollowsFrame() const = 0;
  // Whether the bar leaves out its project menus while a project view is open.
  virtual bool barWatchesProjectView() const = 0;
  virtual bool barStaysOnTop() const = 0;

  // What follows may go unanswered.
  // The bar was hidden or shown with the frame: its companions go with it.
  virtual void showCompanions(bool) {}
  // The IDE was told to save everything.
  virtual void resetAutoSave() {}
};

// The editor that the last title-bar command concerns.
struct EditorTarget {
  HWND window = nullptr;
  char title[256] = "";            // its title as far as the hooks read it
  char file[kPathLimit + 1] = "";  // the file of its whole title, without the IDE's marks
  char documented[512] = "";       // title of the last right click, for the documentation
  POINTS click = {};               // where its popup belongs, in screen coordinates
};

class HookSet {
 public:
  // Installs the hooks on the calling thread. The bar and the host must outlive
  // the set.
  HookSet(HWND bar, HookHost& host);
  ~HookSet();
  HookSet(const HookSet&) = delete;
  HookSet& operator=(const HookSet&) = delete;

  // While a window captures, every key goes to it and none to the IDE; of the last one
  // neither the repeats nor the release do so afterwards.
  void startKeyCapture(HWND window) { key_capture_ = window; }
  void stopKeyCapture() { key_capture_ = nullptr; }

  // The press of Escape that waits in the queue, or is still going on, was meant for what
  // held up the queue: nobody else gets it.
  void swallowEscape();

  const EditorTarget& target() const { return target_; }
  // Set while a title-bar popup is tracked: title-bar clicks go to the IDE.
  void suspend(bool suspended) { suspended_ = suspended; }
  bool suspended() const { return suspended_; }
  // True while the painting command is being posted.
  bool postingPaint() const { return posting_paint_; }

 private:
  static LRESULT CALLBACK mouseHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK callWindowHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK getMessageHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK keyboardHook(int code, WPARAM wParam, LPARAM lParam);

  bool onTitleClick(UINT message, const MOUSEHOOKSTRUCT& mouse);
  void takeClick(HWND editor, POINT point, int command);
  void onWindowMessage(const CWPSTRUCT& message);
  void onEditorFrame(HWND editor);
  void onFrameSize(bool minimised);
  void onFrameActivation(bool active);
  bool onKey(UINT virtual_key, LPARAM lParam);
  bool onSwallowedEscape(LPARAM lParam);
  bool onCapturedKey(UINT virtual_key, LPARAM lParam);
  bool onHeldKey(UINT virtual_key, LPARAM lParam);
  bool onSearchKey(unsigned code);
  void onCommand(HWND window, WPARAM wParam);
  void post(int command, LPARAM lParam = 0);

  // The hook procedures carry no context of their own.
  static HookSet* current;

  HHOOK mouse_ = nullptr;
  HHOOK call_window_ = nullptr;
  HHOOK get_message_ = nullptr;
  HHOOK keyboard_ = nullptr;
  HWND bar_;
  HWND key_capture_ = nullptr;
  UINT held_key_ = 0;  // the one captured last, until it comes up
  EditorTarget target_;
  bool suspended_ = false;
  bool posting_paint_ = false;
  bool swallowing_escape_ = false;
  DWORD swallowing_since_ = 0;  // milliseconds of the system's clock
  HookHost& host_;
};

// The set of the session, null before and after it.
extern HookSet* hookSet;

}  // namespace kesto
