// The topics of the help file: the one place that says which there are. The add-on asks
// for a topic by its number, the pages below docs/help/ name it by its word, and the build
// enters both into the help file's table. Numbers stay as they are once they have been
// given out, as an older help file may lie beside a newer module. Plain C++.
#pragma once

namespace kesto {

// NAME in the code, number, word in the pages ("Top" is the first page of all).
#define KESTO_HELP_TOPICS(TOPIC)                          \
  TOPIC(kHelpContents, 1, "Top")                          \
  /* The option pages */                                  \
  TOPIC(kHelpPageKesto, 10, "page_kesto")                 \
  TOPIC(kHelpPageGeneral, 11, "page_general")             \
  TOPIC(kHelpPageEditor, 12, "page_editor")               \
  TOPIC(kHelpPageCompletion, 13, "page_completion")       \
  TOPIC(kHelpPageDelivery, 14, "page_delivery")           \
  TOPIC(kHelpPageMail, 15, "page_mail")                   \
  TOPIC(kHelpPageTopBar, 16, "page_top_bar")              \
  TOPIC(kHelpPageTask, 17, "page_task")                   \
  TOPIC(kHelpPageGroupware, 18, "page_groupware")         \
  TOPIC(kHelpPageHtml, 19, "page_html")                   \
  TOPIC(kHelpPageKestoWindows, 20, "page_kesto_windows")  \
  TOPIC(kHelpKeyCapture, 21, "key_capture")               \
  /* The menus of the editors' title bars */              \
  TOPIC(kHelpTitleBar, 30, "title_bar")                   \
  TOPIC(kHelpMenuFunctions, 31, "menu_functions")         \
  TOPIC(kHelpMenuIncludes, 32, "menu_includes")           \
  TOPIC(kHelpMenuQuickFind, 33, "menu_quick_find")        \
  TOPIC(kHelpMenuDocumentation, 34, "menu_documentation") \
  TOPIC(kHelpMenuMethods, 35, "menu_methods")             \
  /* The menus of the top screen bar */                   \
  TOPIC(kHelpTopBar, 40, "top_bar")                       \
  TOPIC(kHelpMenuKesto, 41, "menu_kesto")                 \
  TOPIC(kHelpMenuLastIncludes, 42, "menu_last_includes")  \
  TOPIC(kHelpMenuProject, 43, "menu_project")             \
  TOPIC(kHelpMenuTasks, 44, "menu_tasks")                 \
  TOPIC(kHelpMenuGroupware, 45, "menu_groupware")         \
  TOPIC(kHelpMenuHtml, 46, "menu_html")                   \
  /* The searches */                                      \
  TOPIC(kHelpFindFunction, 50, "find_function")           \
  TOPIC(kHelpFindMethod, 51, "find_method")               \
  TOPIC(kHelpFindClass, 52, "find_class")                 \
  TOPIC(kHelpCrossReference, 53, "cross_reference")       \
  TOPIC(kHelpSearchPrompt, 54, "search_prompt")           \
  /* The other dialogs */                                 \
  TOPIC(kHelpTaskList, 60, "task_list")                   \
  TOPIC(kHelpFlash, 61, "flash")                          \
  TOPIC(kHelpDelivery, 62, "delivery")                    \
  TOPIC(kHelpGroupwareSend, 63, "groupware_send")         \
  TOPIC(kHelpGroupwareGet, 64, "groupware_get")           \
  TOPIC(kHelpQuickAdd, 65, "quick_add")                   \
  /* What goes on without a window of its own */          \
  TOPIC(kHelpCompletion, 70, "completion")                \
  TOPIC(kHelpDocumentation, 71, "documentation")          \
  TOPIC(kHelpDialogClasses, 72, "dialog_classes")         \
  TOPIC(kHelpVersions, 73, "versions")                    \
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
