// The topics of the help file: the one place that says which there are. The add-on asks
// for a topic by its number, the pages below docs/help/ name it by its word, and the build
// enters both into the help file's table. Numbers stay as they are once they have been
// given out, as an older help file may lie beside a newer module. Plain C++.
#pragma once

namespace kesto {

// NAME in the code, number, word in the pages ("Top" is the first page of all). Of words of at
// most five characters all viewers agree in which order they are.
#define KESTO_HELP_TOPICS(TOPIC)                 \
  TOPIC(kHelpContents, 1, "Top")                 \
  /* The option pages */                         \
  TOPIC(kHelpPageKesto, 10, "pgkes")             \
  TOPIC(kHelpPageGeneral, 11, "pggen")           \
  TOPIC(kHelpPageEditor, 12, "pgedi")            \
  TOPIC(kHelpPageCompletion, 13, "pgcom")        \
  TOPIC(kHelpPageDelivery, 14, "pgdel")          \
  TOPIC(kHelpPageMail, 15, "pgmai")              \
  TOPIC(kHelpPageTopBar, 16, "pgbar")            \
  TOPIC(kHelpPageTask, 17, "pgtas")              \
  TOPIC(kHelpPageGroupware, 18, "pggrp")         \
  TOPIC(kHelpPageHtml, 19, "pghtm")              \
  TOPIC(kHelpPageKestoWindows, 20, "pgwin")      \
  TOPIC(kHelpKeyCapture, 21, "keys")             \
  /* The menus of the editors' title bars */     \
  TOPIC(kHelpTitleBar, 30, "title")              \
  TOPIC(kHelpMenuFunctions, 31, "func")          \
  TOPIC(kHelpMenuIncludes, 32, "incl")           \
  TOPIC(kHelpMenuQuickFind, 33, "quick")         \
  TOPIC(kHelpMenuDocumentation, 34, "doc")       \
  TOPIC(kHelpMenuMethods, 35, "meths")           \
  /* The menus of the top screen bar */          \
  TOPIC(kHelpTopBar, 40, "bar")                  \
  TOPIC(kHelpMenuKesto, 41, "kesto")             \
  TOPIC(kHelpMenuLastIncludes, 42, "last")       \
  TOPIC(kHelpMenuProject, 43, "proj")            \
  TOPIC(kHelpMenuTasks, 44, "tasks")             \
  TOPIC(kHelpMenuGroupware, 45, "group")         \
  TOPIC(kHelpMenuHtml, 46, "html")               \
  /* The searches */                             \
  TOPIC(kHelpFindFunction, 50, "ffunc")          \
  TOPIC(kHelpFindMethod, 51, "fmeth")            \
  TOPIC(kHelpFindClass, 52, "fclas")             \
  TOPIC(kHelpCrossReference, 53, "xref")         \
  TOPIC(kHelpSearchPrompt, 54, "name")           \
  /* The other dialogs */                        \
  TOPIC(kHelpTaskList, 60, "list")               \
  TOPIC(kHelpFlash, 61, "flash")                 \
  TOPIC(kHelpDelivery, 62, "deliv")              \
  TOPIC(kHelpGroupwareSend, 63, "send")          \
  TOPIC(kHelpGroupwareGet, 64, "get")            \
  TOPIC(kHelpQuickAdd, 65, "add")                \
  /* What goes on without a window of its own */ \
  TOPIC(kHelpCompletion, 70, "compl")            \
  TOPIC(kHelpDocumentation, 71, "site")          \
  TOPIC(kHelpDialogClasses, 72, "class")         \
  TOPIC(kHelpVersions, 73, "versn")              \
  TOPIC(kHelpMake, 74, "make")

#define KESTO_HELP_NUMBER(name, number, word) name = number,
enum HelpTopic : unsigned { KESTO_HELP_TOPICS(KESTO_HELP_NUMBER) };
#undef KESTO_HELP_NUMBER

struct HelpTopicWord {
  const char* word;
  HelpTopic topic;
};

// By number, ascending.
#define KESTO_HELP_WORD(name, number, word) {word, name},
inline constexpr HelpTopicWord kHelpTopicWords[] = {KESTO_HELP_TOPICS(KESTO_HELP_WORD)};
#undef KESTO_HELP_WORD

}  // namespace kesto
