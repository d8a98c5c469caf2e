// Identifiers of the option pages' controls, for the code and the dialog templates.
#pragma once

// The chapter's first page
#define PAGE_SYSTEM 1017

// Project delivery
#define DELIVERY_ENABLED 1010
#define DELIVERY_GROUPS 1011
#define DELIVERY_HEADING_FIRST 1012  // the others follow
#define DELIVERY_HEADING_LAST 1014

// Mail
#define MAIL_CONTROL 1010
#define MAIL_RECIPIENTS 1011
#define MAIL_RECIPIENT 1012
#define MAIL_NEW 1013
#define MAIL_DELETE 1014
#define MAIL_COPY 1015
#define MAIL_PASTE 1016

// Task management
#define TASK_FLASH_FIRST 1010  // one a state
#define TASK_FLASH_LAST 1013
#define TASK_AUTO_FLASH 1014
#define TASK_MAIL_ON 1015
#define TASK_MAIL_AT_ONCE 1016
#define TASK_MAIL_WITH_DELIVERY 1017
#define TASK_ENDED_READ_ONLY 1018
#define TASK_TYPES 1019

// Groupware
#define GROUPWARE_ENABLED 1010
#define GROUPWARE_MAIL_ON_GET 1011
#define GROUPWARE_MAIL_ON_SEND 1012
#define GROUPWARE_FILTERS 1013
#define GROUPWARE_SERVER 1014
#define GROUPWARE_BROWSE 1015

// HTML generation
#define HTML_ENABLED 1010
#define HTML_AUTOMATIC 1012
#define HTML_WHOSE 1013
#define HTML_FILTERS 1014

// Kesto Windows
#define WINDOWS_CLASSES 1010
#define WINDOWS_VERSIONS 1011
