// Controls of the dialogs "GroupwareSend" and "GroupwareGet".
#pragma once

#define GROUP_LIST 101
#define GROUP_CLEAR 102
#define GROUP_KEEPING 103  // "Update", "Refresh"
#define GROUP_LOCKING 104  // "Send && unlock", "Get && lock"
#define GROUP_PERFORM 105
#define GROUP_ADVISED 106
#define GROUP_HEADINGS 110  // the first of them
