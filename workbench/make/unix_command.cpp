#include "workbench/make/unix_command.h"

#include <algorithm>
#include <cstdlib>

namespace workbench {
namespace {

constexpr DWORD kMostUnread = 64u << 20;  // bytes
constexpr char kShell[] = "\\\\?\\unix\\bin\\sh -c ";

// Its arguments: the command, its program, the files for the output and for the end.
constexpr char kRunScript[] =
    "exec 3>\"$4\" >\"$3\" 2>&1 </dev/null; "
    "if command -v -- \"$2\" >/dev/null 2>&1; then /bin/sh -c \"$1\" 3>&-; echo \"=$?\" >&3; "
    "else echo = >&3; fi";

// Its argument: the variable. Who does not end when asked to is made to.
constexpr char kEndScript[] =
    "for signal in TERM KILL KILL; do "
    "for process in $(grep -lzxsF -e \"$1\" /proc/[0-9]*/environ); do "
    "process=${process%/environ}; kill -$signal \"${process#/proc/}\" 2>/dev/null; done; "
    "sleep 1; done";

using UnixName = char*(__cdecl*)(LPCWSTR);

UnixName unixName() {
  static const auto function = reinterpret_cast<UnixName>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
  return function;
}

// As the start of a program takes its command line apart.
std::string quoted(const std::string& argument) {
  std::string result = "\"";
  std::size_t backslashes = 0;
  for (const char c : argument) {
    if (c == '"') {
      result.append(backslashes + 1, '\\');
    }
    backslashes = c == '\\' ? backslashes + 1 : 0;
    result += c;
  }
  return result.append(backslashes, '\\') + '"';
}

bool startShell(const std::string& arguments, const char* folder) {
  STARTUPINFOA info = {};
  info.cb = sizeof info;
  PROCESS_INFORMATION made = {};
  std::string line = kShell + arguments;
  // There are no handles of what is no Windows process.
  return CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        folder, &info, &made) != 0;
}

}  // namespace

bool UnixCommand::possible() {
  return unixName() != nullptr;
}

std::string UnixCommand::nameOf(const std::string& path) {
  wchar_t wide[MAX_PATH] = {};
  if (unixName() == nullptr ||
      MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, wide, MAX_PATH) == 0) {
    return {};
  }
  char* name = unixName()(wide);
  std::string result = name != nullptr ? name : "";
  HeapFree(GetProcessHeap(), 0, name);
  return result;
}

void UnixCommand::endAllWith(const std::string& variable) {
  startShell(quoted(kEndScript) + " sh " + quoted(variable), nullptr);
}

OwnedFile UnixCommand::scratchFile(std::string* path) {
  char folder[MAX_PATH] = {};
  char name[MAX_PATH] = {};
  if (GetTempPathA(sizeof folder, folder) == 0 || GetTempFileNameA(folder, "wbm", 0, name) == 0) {
    return {};
  }
  *path = name;
  HANDLE file =
      CreateFileA(name, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, 0, nullptr);
  return OwnedFile(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

bool UnixCommand::start(const std::string& command, const std::string& program,
                        const std::string& folder) {
  close();
  output_ = scratchFile(&output_path_);
  state_ = scratchFile(&state_path_);
  std::string arguments = quoted(kRunScript) + " sh " + quoted(command) + ' ' + quoted(program);
  for (const std::string& path : {output_path_, state_path_}) {
    arguments += ' ' + quoted(nameOf(path));
  }
  if (!output_ || !state_ || !startShell(arguments, folder.c_str())) {
    const DWORD error = GetLastError();
    close();
    SetLastError(error);
    return false;
  }
  return true;
}

void UnixCommand::read(std::size_t most, std::string* bytes) {
  char buffer[4096];
  DWORD count = 1;
  while (output_ && most > 0 && count > 0) {
    count = 0;
    const auto wanted = static_cast<DWORD>(std::min(sizeof buffer, most));
    if (ReadFile(output_.get(), buffer, wanted, &count, nullptr) != 0) {
      bytes->append(buffer, count);
      most -= count;
      read_ += count;
    }
  }
}

bool UnixCommand::ended(DWORD* exit_code) const {
  char text[4096] = {};
  DWORD count = 0;
  if (!state_ || SetFilePointer(state_.get(), 0, nullptr, FILE_BEGIN) != 0 ||
      ReadFile(state_.get(), text, sizeof text - 1, &count, nullptr) == 0) {
    return false;
  }
  const std::string state(text, count);
  const std::size_t mark = state.rfind('=');
  if (mark == std::string::npos || state.back() != '\n') {
    return false;
  }
  *exit_code = state[mark + 1] == '\n'
                   ? kNoProgram
                   : static_cast<DWORD>(std::strtoul(state.c_str() + mark + 1, nullptr, 10));
  return true;
}

bool UnixCommand::floods() const {
  const DWORD size = output_ ? GetFileSize(output_.get(), nullptr) : 0;
  return size != INVALID_FILE_SIZE && size - read_ > kMostUnread;
}

void UnixCommand::close() {
  output_.reset();
  state_.reset();
  for (std::string* path : {&output_path_, &state_path_}) {
    if (!path->empty()) {
      DeleteFileA(path->c_str());
    }
    path->clear();
  }
  read_ = 0;
}

}  // namespace workbench
