// The options page of the program itself: how editors show their text. Made for
// one showing of the dialog. User-interface thread only.
#pragma once

#include "workbench/editor/editor_settings.h"
#include "workbench/services/counted.h"

namespace workbench {

class EditorPage final : public Transient<EditorPage, IMpdPage> {
 public:
  // Settings and live counts must outlive the page.
  EditorPage(LiveObjects& live, EditorSettings& settings);

  IIdeString* STDMETHODCALLTYPE GetTitle() override;
  HINSTANCE STDMETHODCALLTYPE GetModule() override;
  int STDMETHODCALLTYPE GetDialogId() override;
  int STDMETHODCALLTYPE GetKind() override { return 0; }
  IIdeString* STDMETHODCALLTYPE GetDescription() override;
  void STDMETHODCALLTYPE Fill(HWND dialog) override;
  int STDMETHODCALLTYPE Command(HWND dialog, int control, int notification) override;
  // It costs nothing to store again what was there.
  int STDMETHODCALLTYPE IsChanged() override { return 1; }
  IIdeString* STDMETHODCALLTYPE GetHelpText(int control) override;
  void STDMETHODCALLTYPE ShowHelp() override {}
  int STDMETHODCALLTYPE Validate(HWND dialog) override;
  void STDMETHODCALLTYPE Store(HWND dialog) override;

 private:
  LiveObjects& live_;
  EditorSettings& settings_;
};

}  // namespace workbench
