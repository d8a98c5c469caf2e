#include "addon/pages/addon_chapter.h"

#include <new>

#include "addon/ide/koptions.h"
#include "addon/pages/first_page.h"

namespace kesto {

namespace {

IMpdChapterAddon* theChapter = nullptr;

IOptionsService* service() {
  return optionsServiceHolder != nullptr ? optionsServiceHolder->get() : nullptr;
}

}  // namespace

// A page that memory was too short for is not there, and the others move up.
template <class Page>
void IMpdChapterAddon::add() {
  if (auto* page = new (std::nothrow) Page(kFirstPageDialog + pages_.count())) {
    pages_.append(page);
  }
}

IMpdChapterAddon::IMpdChapterAddon() {
  pages_.setOwns(false);
  add<FirstPage>();
}

IMpdChapterAddon::~IMpdChapterAddon() {
  while (pages_.count() > 0) {
    pages_.remove(pages_.count() - 1)->Release();
  }
}

IMpdPage* STDMETHODCALLTYPE IMpdChapterAddon::GetPage(int position) {
  if (position < 0 || position >= pages_.count()) {
    return nullptr;
  }
  pages_[position]->AddRef();
  return pages_[position];
}

void addOptionsChapter() {
  if (service() == nullptr || theChapter != nullptr) {
    return;
  }
  theChapter = new (std::nothrow) IMpdChapterAddon;
  if (theChapter != nullptr) {
    service()->AddChapter(theChapter);
  }
}

void removeOptionsChapter() {
  if (theChapter != nullptr) {
    service()->RemoveChapter(theChapter);
    theChapter->Release();
    theChapter = nullptr;
  }
}

}  // namespace kesto
