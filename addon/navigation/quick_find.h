// QuickFind: finding where a name is defined or used, without a browser database. Its
// settings (file masks, shortcut keys, and the side of the title-bar buttons), the four
// searches and what the last of them found. One object, created and destroyed by the
// lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "addon/foundation/key_code.h"
#include "addon/foundation/path.h"
#include "addon/foundation/setting.h"
#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"
#include "addon/navigation/cross_reference.h"
#include "addon/navigation/name_matchers.h"
#include "addon/navigation/prompt_history.h"
#include "addon/navigation/quick_resu.h"
#include "addon/navigation/search_plan.h"

namespace kesto {

// Those of the keys in the order of Search.
struct QuickFindSettings {
  SettingSection section{"QuickFind"};
  TextSetting function_mask{section, "FunctionMask", kSourceMasks};
  TextSetting include_mask{section, "IncludeMask", kHeaderMasks};
  TextSetting key_texts[kSearchCount] = {{section, "TxtFunction", kNoKeyText},
                                         {section, "TxtMethod", kNoKeyText},
                                         {section, "TxtClass", kNoKeyText},
                                         {section, "TxtCross", kNoKeyText}};
  IntegerSetting recurse{section, "Recurse", 1};
  IntegerSetting left_side{section, "LeftSide", 1};
  IntegerSetting keys[kSearchCount] = {{section, "KeyFunction", 0},
                                       {section, "KeyMethod", 0},
                                       {section, "KeyClass", 0},
                                       {section, "KeyCross", 0}};
};

class QuickFind {
 public:
  // Reads the settings. The owner is the bar window.
  explicit QuickFind(HWND owner);
  // Writes them back.
  ~QuickFind();
  QuickFind(const QuickFind&) = delete;
  QuickFind& operator=(const QuickFind&) = delete;

  QuickFindSettings settings;
  bool leftSide() const { return settings.left_side.value != 0; }
  // The shortcut's key code, 0 for none.
  unsigned short key(Search search) const {
    return static_cast<unsigned short>(settings.keys[static_cast<int>(search)].value);
  }
  // The shortcut as the user reads it.
  const std::string& keyText(Search search) const {
    return settings.key_texts[static_cast<int>(search)].value;
  }

  // Asks for a name, searches it and shows what was found. A search that comes while
  // another still asks does nothing.
  void run(Search search);
  // The popup of the last method search, at the mouse; its ids start at 800.
  void showMethodResults(HWND bar);
  // Has the bar open a hit of the last method search; an index outside it does nothing.
  void chooseMethodResult(int index);

  // Lists the uses of the name in the message window; false when there is none in any of
  // the files. Those found before Escape ended the search are listed as such.
  bool crossReference(const std::string& name);

 private:
  bool searchFor(Search search, const std::string& name);
  bool findDefinition(Search search, const std::string& name);
  bool findMethods(const std::string& name);
  // False when Escape ended the search: hits are those so far, which the status line tells.
  bool collect(Search search, const std::string& name, Tableau<QuickResu>& hits);
  std::vector<SearchStep> plan(Search search) const;
  // Posts one of the bar's messages about a file and a line.
  void postFound(UINT message, const char* path, int line);

  HWND owner_;
  Tableau<QuickResu> method_results_;
  Tableau<QuickResu> cross_results_;
  CrossReferenceMessages messages_;

  PromptHistory history_;
  bool asking_ = false;
  // Of the last posted message, which points here.
  char found_path_[kPathLimit + 1] = "";
};

extern QuickFind* quickFind;

}  // namespace kesto
