// Controls of the task list's dialog, for its template and its procedure.
#pragma once

#define TASKS_GROUP 101
#define TASKS_ORDER 102
#define TASKS_LIST 103
#define TASKS_SHOW_FIRST 104  // and three more, in the order of the states
#define TASKS_SHOW_LAST 107
#define TASKS_CURRENT 108
#define TASKS_CREATE 109
#define TASKS_REMOVE 110
#define TASKS_NAME 111
#define TASKS_PRIORITY 112
#define TASKS_PUBLIC 113
#define TASKS_START 114
#define TASKS_STATE 115
#define TASKS_REVERSE 116
#define TASKS_END 117
#define TASKS_TEXT 118
#define TASKS_TYPE 119
#define TASKS_OK 121
// What stands above the columns, from the first to the last.
#define TASKS_HEADING_FIRST 131
#define TASKS_HEADING_LAST 136
#define TASKS_HELP 65535
