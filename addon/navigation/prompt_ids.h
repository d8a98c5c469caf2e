// Controls of the text prompt. Macros, as the resource compiler reads them too.
#pragma once

#define PROMPT_TEXT 101
