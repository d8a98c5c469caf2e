// The base of the add-on's pages in the IDE's options dialog. A page says in exchange()
// what its controls show; the base fills, stores and helps with it, and keeps whether
// anything was changed. The chapter and the IDE hold references; user-interface thread.
#pragma once

#include "addon/foundation/basic.h"
#include "addon/ide/unknown_imp.h"
#include "addon/pages/page_exchange.h"

namespace kesto {

inline constexpr int kFirstPageDialog = 102;
inline constexpr int kFirstPageKind = 0x1000;
inline constexpr int kPageKind = 1;

class AddonPageBase : public IUnknownImp<IMpdPage>, public Basic {
 public:
  // The texts are literals. The topic is a context number of the help file.
  AddonPageBase(int dialog_id, int kind, const char* title, const char* description, DWORD topic);

  IIdeString* STDMETHODCALLTYPE GetTitle() override;
  HINSTANCE STDMETHODCALLTYPE GetModule() override;
  int STDMETHODCALLTYPE GetDialogId() override { return dialog_id_; }
  int STDMETHODCALLTYPE GetKind() override { return kind_; }
  IIdeString* STDMETHODCALLTYPE GetDescription() override;
  void STDMETHODCALLTYPE Fill(HWND dialog) override;
  int STDMETHODCALLTYPE Command(HWND dialog, int control, int notification) override;
  int STDMETHODCALLTYPE IsChanged() override { return changed_ ? 1 : 0; }
  IIdeString* STDMETHODCALLTYPE GetHelpText(int control) override;
  void STDMETHODCALLTYPE ShowHelp() override;
  int STDMETHODCALLTYPE Validate(HWND dialog) override { return valid(dialog) ? 1 : 0; }
  void STDMETHODCALLTYPE Store(HWND dialog) override;

 protected:
  ~AddonPageBase() override = default;

  // Every control of the page once, with its help text and the value that it shows.
  virtual void exchange(PageExchange& controls) = 0;
  // After the controls were filled: what exchange() does not say.
  virtual void filled(HWND) {}
  // A control's notification, once it was looked at for changes. True when it was handled.
  virtual bool command(HWND, int /*control*/, int /*notification*/) { return false; }
  // Whether what the controls hold may be stored; if not, the page has said why.
  virtual bool valid(HWND) { return true; }
  // After the controls' values were taken: keeps them, and does what follows from them.
  virtual void stored(HWND) {}

  void markChanged() { changed_ = true; }
  // Whether the control holds a number from least to most; if not, a box has said the text,
  // and the control has the focus.
  static bool requireRange(HWND dialog, int control, int least, int most, const char* refusal);

 private:
  int dialog_id_;
  int kind_;
  const char* title_;
  const char* description_;
  DWORD topic_;
  bool filling_ = false;
  bool changed_ = false;
};

}  // namespace kesto
