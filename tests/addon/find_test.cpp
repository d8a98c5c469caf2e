// The shell of the searches: the selection by way of the clipboard, the files of a
// tree on the disk, the message window.
#include <windows.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "addon/foundation/directory_listing.h"
#include "addon/ide/access.h"
#include "addon/ide/clipboard.h"
#include "addon/navigation/cross_reference.h"
#include "addon/navigation/ide_sources.h"
#include "addon/navigation/quick_find.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"

namespace kesto {

namespace {

void put(UINT format, const std::string& bytes) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, bytes.size());
  memcpy(GlobalLock(memory), bytes.data(), bytes.size());
  GlobalUnlock(memory);
  SetClipboardData(format, memory);
}

std::string bytesOf(UINT format) {
  const HANDLE memory = GetClipboardData(format);
  const auto* bytes = memory != nullptr ? static_cast<const char*>(GlobalLock(memory)) : nullptr;
  std::string result;
  if (bytes != nullptr) {
    result.assign(bytes, GlobalSize(memory));
    GlobalUnlock(memory);
  }
  return result;
}

// A window that puts its selection on the clipboard when asked to copy, as an editor does;
// without one it leaves the clipboard alone. What it promised it renders when asked.
class CopyingWindow {
 public:
  CopyingWindow()
      : handle_(CreateWindowExA(0, "STATIC", "", 0, 0, 0, 9, 9, nullptr, nullptr,
                                GetModuleHandleA(nullptr), nullptr)) {
    SetWindowLongPtrA(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
  }
  ~CopyingWindow() { DestroyWindow(handle_); }
  CopyingWindow(const CopyingWindow&) = delete;
  CopyingWindow& operator=(const CopyingWindow&) = delete;
  HWND handle() const { return handle_; }

  static std::string selection;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COPY && !selection.empty()) {
      Clipboard clipboard(window);
      clipboard.clear();
      put(CF_TEXT, selection + '\0');
    } else if (message == WM_RENDERFORMAT) {
      put(static_cast<UINT>(wParam), "rendered");
    }
    return DefWindowProcA(window, message, wParam, lParam);
  }

  HWND handle_;
};

std::string CopyingWindow::selection;

// A folder of its own for a test, gone afterwards.
class Folder {
 public:
  Folder() {
    char temp[MAX_PATH] = "";
    GetTempPathA(sizeof temp, temp);
    path_ = std::string(temp) + "kesto-find";
    for (const char* name : {"", "\\sub", "\\.hidden", "\\folder.cpp"}) {
      CreateDirectoryA((path_ + name).c_str(), nullptr);
    }
    for (const char* name : kFiles) {
      std::ofstream(path_ + name) << "x";
    }
  }
  ~Folder() {
    for (const char* name : kFiles) {
      DeleteFileA((path_ + name).c_str());
    }
    for (const char* name : {"\\folder.cpp", "\\.hidden", "\\sub", ""}) {
      RemoveDirectoryA((path_ + name).c_str());
    }
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  const std::string& path() const { return path_; }

 private:
  static constexpr const char* kFiles[] = {"\\a.cpp", "\\a.h", "\\page.html", "\\sub\\b.cpp",
                                           "\\.hidden\\c.cpp"};
  std::string path_;
};

}  // namespace

TEST_CASE("all that was on the clipboard survives, whether or not there is a selection") {
  const CopyingWindow window;
  const UINT own = RegisterClipboardFormatA("Kesto test");
  const UINT promised = RegisterClipboardFormatA("Kesto test, promised");
  // Letters that no 8-bit text has, an end and bytes behind it.
  const std::string unicode("\x16\x04\x3b\x04\0\0", 6);
  const std::string bytes("\x01\0\xff", 3);
  const METAFILEPICT size = {MM_ANISOTROPIC, 30, 40, nullptr};
  const DWORD metafile_record = 0x01020304;
  const std::string long_selection(100000, 's');
  for (const std::string& selection : {long_selection, std::string()}) {
    {
      Clipboard clipboard(window.handle());
      REQUIRE(clipboard.isOpen());
      clipboard.clear();
      put(own, bytes);
      put(CF_UNICODETEXT, unicode);
      SetClipboardData(promised, nullptr);
      SetClipboardData(CF_BITMAP, CreateBitmap(3, 2, 1, 1, "\xa0\0\x40\0"));
      METAFILEPICT picture = size;
      const HDC recorder = CreateMetaFileA(nullptr);
      SetTextColor(recorder, metafile_record);
      picture.hMF = CloseMetaFile(recorder);
      put(CF_METAFILEPICT, std::string(reinterpret_cast<const char*>(&picture), sizeof picture));
    }
    CopyingWindow::selection = selection;
    CHECK(copySelection(window.handle(), window.handle()) == selection);
    const Clipboard clipboard(window.handle());
    CHECK(EnumClipboardFormats(0) == own);
    CHECK(bytesOf(own).substr(0, bytes.size()) == bytes);
    CHECK(bytesOf(CF_UNICODETEXT).substr(0, unicode.size()) == unicode);
    CHECK(bytesOf(promised).substr(0, 8) == "rendered");
    BITMAP bitmap = {};
    BYTE rows[4] = {};
    const HANDLE picture = GetClipboardData(CF_BITMAP);
    REQUIRE(GetObjectA(picture, sizeof bitmap, &bitmap) != 0);
    CHECK(bitmap.bmWidth == 3);
    CHECK(bitmap.bmHeight == 2);
    CHECK(GetBitmapBits(static_cast<HBITMAP>(picture), sizeof rows, rows) == 4);
    CHECK(rows[0] == 0xa0);
    CHECK(rows[2] == 0x40);
    METAFILEPICT metafile = {};
    memcpy(&metafile, bytesOf(CF_METAFILEPICT).data(), sizeof metafile);
    CHECK(metafile.yExt == size.yExt);
    std::string records(GetMetaFileBitsEx(metafile.hMF, 0, nullptr), '\0');
    GetMetaFileBitsEx(metafile.hMF, static_cast<UINT>(records.size()), records.data());
    CHECK(records.find("\x04\x03\x02\x01") != std::string::npos);
  }
}

TEST_CASE("a clipboard that cannot be kept is left alone") {
  const CopyingWindow window;
  {
    Clipboard clipboard(window.handle());
    clipboard.clear();
    put(CF_TEXT, std::string("kept\0", 5));
    put(CF_PRIVATEFIRST, "its owner's");
  }
  CopyingWindow::selection = "name";
  CHECK(copySelection(window.handle(), window.handle()).empty());
  {
    const Clipboard clipboard(window.handle());
    CHECK(bytesOf(CF_TEXT).substr(0, 4) == "kept");
    CHECK(GetClipboardOwner() == window.handle());
  }
  Clipboard(window.handle()).clear();
}

TEST_CASE("the files of a tree are searched as the IDE holds them") {
  BarSession session;
  fake::Ide& ide = session.ide;
  ide.stream.disk = "int f()\n{\n  call();\n  call();\n}\n";
  const Folder folder;
  const std::vector<SearchStep> plan = {{folder.path(), "*.cpp"}, {folder.path() + "2", "*.cpp"}};
  const NameMatcher matcher(Search::kCross, "call");
  {
    Tableau<QuickResu> hits;
    IdeSources sources;
    const SearchedFiles files = sources.files();
    collectHits(files, plan, true, matcher, hits);
    REQUIRE(hits.count() == 4);
    collectHits(files, plan, false, matcher, hits);
    CHECK(hits.count() == 2);
    // The system has a short name for what it lists, "page.html" for one.
    collectHits(files, {{folder.path(), "*.htm"}}, false, matcher, hits);
    CHECK(hits.count() == 2);

    // The file of the first reads cannot be read; the search goes on behind it.
    ide.stream.negative_reads = 2;
    FirstHit hit;
    CHECK(findFirst(files, plan, true, matcher, hit));
    CHECK(hit.file == folder.path() + "\\sub\\b.cpp");
    CHECK(hit.line == 3);
    CHECK_FALSE(findFirst(files, plan, true, NameMatcher(Search::kClass, "call"), hit));

    // Hits without end are cut off before memory is.
    ide.stream.disk.clear();
    for (int i = 0; i < 2000; ++i) {
      ide.stream.disk += " call" + std::string(40000, '.') + "\n";
    }
    collectHits(files, plan, true, matcher, hits);
    CHECK(hits.count() > 1000);
    CHECK(hits.count() * size_t{40000} <= kHitBytesLimit);
  }
  // Without the message window nothing is written.
  ide.services.erase(ideapi::kMessageService.Data1);
  CrossReferenceMessages().write("call", Tableau<QuickResu>());
}

namespace {

// Takes the add-on away at the end of the session.
LRESULT CALLBACK endingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_ENDSESSION) {
    delete quickFind;
    quickFind = nullptr;
    releaseIde();
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

DWORD WINAPI endSession(void* window) {
  SendMessageA(static_cast<HWND>(window), WM_ENDSESSION, TRUE, 0);
  return 0;
}

// Reads on until the message has come, and the search looks at messages again.
void awaitEnd() {
  constexpr DWORD kLookPeriod = 50;
  const DWORD begun = GetTickCount();
  while (HIWORD(GetQueueStatus(QS_SENDMESSAGE)) == 0 || GetTickCount() - begun <= kLookPeriod) {
  }
}

}  // namespace

TEST_CASE("a search ends with the session, and uses nothing after it") {
  BarSession session;
  session.create();
  session.ide.stream.disk = "int f()\n{\n  call();\n}\n";
  session.ide.stream.opened = awaitEnd;
  const Folder folder;
  session.openProject(folder.path() + "\\p.ide");
  const auto texts = session.ide.status_line.texts.size();
  SetWindowLongPtrA(session.windows.bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(endingProcedure));
  quickFind = new QuickFind(session.windows.bar);
  const HANDLE thread = CreateThread(nullptr, 0, endSession, session.windows.bar, 0, nullptr);
  CHECK(quickFind->crossReference("call"));
  CHECK(quickFind == nullptr);
  CHECK(session.ide.stream.modes.size() == 1);
  CHECK(session.ide.messages.log.empty());
  CHECK(session.ide.status_line.texts.size() == texts + 1);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
}

TEST_CASE("how far a search was is not told any more when it is over") {
  BarSession session;
  session.create();
  session.ide.stream.disk = "int f()\n{\n  call();\n}\n";
  // As long as a search may take that tells nothing.
  session.ide.stream.opened = [] {
    for (const DWORD begun = GetTickCount(); GetTickCount() - begun <= 1000;) {
    }
  };
  const Folder folder;
  session.openProject(folder.path() + "\\p.ide");
  QuickFind searching(session.windows.bar);
  quickFind = &searching;
  CHECK(searching.crossReference("call"));
  quickFind = nullptr;
  const auto& texts = session.ide.status_line.texts;
  const auto told =
      std::find(texts.begin(), texts.end(), "Searching call ... 1 file in 1 folder, Esc stops");
  REQUIRE(texts.end() - told > 2);
  CHECK(texts.end()[-2] == "Searching call ...");
  CHECK(texts.back() == "References found, see Message Window");
}

}  // namespace kesto
