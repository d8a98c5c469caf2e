// The add-on's chapter of the IDE's options dialog. It holds one reference on each of its
// pages; the IDE takes others while the dialog is open. Made at the add-on's start, handed
// to the options service, and taken back at its end. User-interface thread.
#pragma once

#include "addon/foundation/tableau.h"
#include "addon/pages/addon_page_base.h"

namespace kesto {

class IMpdChapterAddon : public IUnknownImp<IMpdChapter> {
 public:
  // Makes the pages in the order of the dialog.
  IMpdChapterAddon();

  int STDMETHODCALLTYPE GetPageCount() override { return pages_.count(); }
  IMpdPage* STDMETHODCALLTYPE GetPage(int position) override;

 protected:
  ~IMpdChapterAddon() override;

 private:
  template <class Page>
  void add();

  Ensemble<AddonPageBase> pages_;
};

// Makes the chapter and hands it to the options service; takes it back and lets it go.
// Without the service there is none.
void addOptionsChapter();
void removeOptionsChapter();

}  // namespace kesto
