// Identifiers of the option pages' controls, for the code and the dialog templates.
#pragma once

// The chapter's first page
#define PAGE_SYSTEM 1017
