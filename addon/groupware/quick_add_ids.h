// Controls of the dialog "QuickAdd". Macros, as the resource compiler reads them too.
#pragma once

#define QUICK_ADD_NAME 102
#define QUICK_ADD_NEW 107
#define QUICK_ADD_CONTAINER 110
#define QUICK_ADD_LEVEL 111
#define QUICK_ADD_SIBLING 112
#define QUICK_ADD_PARENT 113
#define QUICK_ADD_ROOT 114
