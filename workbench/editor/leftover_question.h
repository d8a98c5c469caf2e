// What an interrupted save left beside a file, offered when the file is opened. Nothing
// of it goes without a word. User-interface thread only.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "workbench/editor/file_store.h"

namespace workbench {

using BoxQuestion = std::function<int(const std::string& text, UINT buttons)>;

// True when the user wants the text of one: *bytes has it, *from the file it is in, which
// goes once the text is saved. now: what the file itself holds, null when it is not there.
bool askForLeftover(FileStore& store, const std::string& path, const std::string* now,
                    const BoxQuestion& ask, std::string* bytes, std::string* from);

}  // namespace workbench
