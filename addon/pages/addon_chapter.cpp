#include "addon/pages/addon_chapter.h"

#include <new>

#include "addon/ide/koptions.h"
#include "addon/pages/completion_page.h"
#include "addon/pages/delivery_page.h"
#include "addon/pages/editor_page.h"
#include "addon/pages/first_page.h"
#include "addon/pages/general_page.h"
#include "addon/pages/groupware_page.h"
#include "addon/pages/html_page.h"
#include "addon/pages/kesto_windows_page.h"
#include "addon/pages/mail_page.h"
#include "addon/pages/task_page.h"
#include "addon/pages/top_menu_page.h"

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
  add<GeneralPage>();
  add<EditorPage>();
  add<TopMenuPage>();
  add<CompletionPage>();
  add<DeliveryPage>();
  add<MailPage>();
  add<TaskPage>();
  add<GroupwarePage>();
  add<HTMLPage>();
  add<KestoWindowsPage>();
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
