// Menu commands and controls of the Workbench; read by the resource compiler too,
// so plain defines. The ids the IDE is known by stand in ideapi/ide_identifiers.h.
#pragma once

#define CM_FILE_NEW 13101
#define CM_FILE_OPEN 13102
#define CM_FILE_SAVE 13103
#define CM_FILE_SAVE_ALL 13104
#define CM_FILE_SAVE_AS 13105
#define CM_FILE_OPEN_FOLDER 13106
#define CM_FILE_CLOSE 13107
#define CM_FILE_EXIT 13108

#define CM_EDIT_UNDO 13151
#define CM_EDIT_REDO 13152
#define CM_EDIT_CUT 13153
#define CM_EDIT_COPY 13154
#define CM_EDIT_PASTE 13155
#define CM_EDIT_DELETE 13156
#define CM_EDIT_SELECT_ALL 13157
#define CM_EDIT_FIND 13158
#define CM_EDIT_FIND_NEXT 13159
#define CM_EDIT_FIND_PREVIOUS 13160
#define CM_EDIT_GO_TO_LINE 13161

/* The IDE is known by these two as well. */
#define CM_WINDOW_PROJECT 13251
#define CM_WINDOW_MESSAGES 13252

#define CM_PROJECT_OPEN_FILE 13301
#define CM_PROJECT_CLOSE 13302

#define CM_OPTIONS_ENVIRONMENT 13492

#define CM_WINDOW_CASCADE 13501
#define CM_WINDOW_TILE 13502
#define CM_WINDOW_ARRANGE 13503
#define CM_WINDOW_NEXT 13504
#define CM_WINDOW_CLOSE_ALL 13505
#define CM_WINDOW_NEW_VIEW 13506

#define CM_HELP_ABOUT 13601

/* Tools of add-ons: this plus the tool's handle. */
#define CM_FIRST_TOOL 14000
#define CM_LAST_TOOL 14999

/* Windows of the MDI menu number from here. */
#define CM_FIRST_CHILD 20000

#define IDM_FRAME 1
#define IDA_FRAME 1

#define IDD_FIND 201
#define IDD_GO_TO_LINE 202
#define IDD_PROJECT_FILES 203
#define IDD_OPTIONS 204

#define IDC_FIND_TEXT 301
#define IDC_FIND_CASE 302
#define IDC_FIND_BACKWARD 303
#define IDC_LINE_NUMBER 304
#define IDC_FILES_FILTER 305
#define IDC_FILES_LIST 306
#define IDC_FILES_COUNT 307
#define IDC_OPTIONS_TOPICS 308
#define IDC_OPTIONS_PLACE 309
#define IDC_OPTIONS_TITLE 310
#define IDC_OPTIONS_HELP_TEXT 311
#define IDC_LINE_RANGE 312

#define IDD_PAGE_EDITOR 211
#define IDC_TAB_WIDTH 321
#define IDC_FONT_POINTS 322
#define IDC_LINE_NUMBERS 323
#define IDC_COLOURS 324
