// The flash window's control, for its template and its procedure.
#pragma once

#define FLASH_TEXT 101
