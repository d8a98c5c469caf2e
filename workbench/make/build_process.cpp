#include "workbench/make/build_process.h"

#include <algorithm>
#include <vector>

#include "workbench/make/output_line.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

constexpr UINT kStopped = 1;  // exit code of a process that was ended
// Whatever a build command starts has this in its environment.
constexpr char kMark[] = "WORKBENCH_MAKE";

// Jobs came with Windows 2000.
struct Jobs {
  HANDLE(WINAPI* create)(LPSECURITY_ATTRIBUTES, LPCSTR);
  BOOL(WINAPI* assign)(HANDLE, HANDLE);
  BOOL(WINAPI* terminate)(HANDLE, UINT);

  Jobs() : create(nullptr), assign(nullptr), terminate(nullptr) {
    const HMODULE kernel = GetModuleHandleA("kernel32.dll");
    find(kernel, "CreateJobObjectA", &create);
    find(kernel, "AssignProcessToJobObject", &assign);
    find(kernel, "TerminateJobObject", &terminate);
  }
  bool there() const { return create != nullptr && assign != nullptr && terminate != nullptr; }

 private:
  template <typename Function>
  static void find(HMODULE module, const char* name, Function* function) {
    *function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
  }
};

const Jobs& jobs() {
  static const Jobs loaded;
  return loaded;
}

std::string systemText(DWORD error) {
  char text[256] = {};
  DWORD size = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                              error, 0, text, sizeof text, nullptr);
  while (size > 0 && static_cast<unsigned char>(text[size - 1]) <= ' ') {
    --size;
  }
  return size > 0 ? std::string(text, size) : "error " + std::to_string(error);
}

std::string interpreter() {
  char path[MAX_PATH] = {};
  const DWORD size = GetEnvironmentVariableA("COMSPEC", path, sizeof path);
  return size > 0 && size < sizeof path ? std::string(path, size) : "cmd.exe";
}

// A program in the project's own folder is not where the system looks.
std::string inFolder(const std::string& command, const std::string& folder) {
  const std::size_t end = command.find(' ');
  std::string result = "\"";
  result += joinPath(folder, command.substr(0, end));
  result += '"';
  return end == std::string::npos ? result : result + command.substr(end);
}

std::string inSingleQuotes(const std::string& text) {
  std::string result = "'";
  for (const char c : text) {
    result += c == '\'' ? "'\\''" : std::string(1, c);
  }
  return result + '\'';
}

// Where the program's file is; empty when there is none.
std::string findProgram(const std::string& program, const std::string& folder) {
  char path[MAX_PATH] = {};
  for (const std::string& name : {program, joinPath(folder, program)}) {
    const DWORD size = SearchPathA(nullptr, name.c_str(), ".exe", sizeof path, path, nullptr);
    if (size > 0 && size < sizeof path &&
        (GetFileAttributesA(path) & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      return std::string(path, size);
    }
  }
  return {};
}

bool isWindowsProgram(const std::string& file) {
  HANDLE handle = CreateFileA(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
  const OwnedFile owned(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
  char start[2] = {};
  DWORD count = 0;
  return owned && ReadFile(handle, start, sizeof start, &count, nullptr) != 0 &&
         std::string(start, count) == "MZ";
}

}  // namespace

bool BuildProcess::start(const std::string& command, const std::string& folder,
                         std::string* reason) {
  stop();
  const std::string value =
      std::to_string(GetCurrentProcessId()) + '-' + std::to_string(GetTickCount());
  SetEnvironmentVariableA(kMark, value.c_str());
  const bool started = startMarked(command, folder);
  const DWORD error = GetLastError();
  SetEnvironmentVariableA(kMark, nullptr);
  if (started) {
    mark_ = std::string(kMark) + '=' + value;
  } else {
    *reason = systemText(error);
  }
  return started;
}

bool BuildProcess::startMarked(const std::string& command, const std::string& folder) {
  const std::string program = programOf(command);
  if (UnixCommand::possible() && !needsInterpreter(program)) {
    const std::string file = program.starts_with('/') ? "" : findProgram(program, folder);
    if (file.empty()) {
      return unix_.start(command, program, folder);
    }
    if (!isWindowsProgram(file)) {
      // The system below does not know it by a name of Windows.
      const std::string name = UnixCommand::nameOf(file);
      std::size_t end = command.find(program) + program.size();
      end += end < command.size() && command[end] == '"' ? 1 : 0;
      return unix_.start(inSingleQuotes(name) + command.substr(end), name, folder);
    }
  }
  if (needsInterpreter(command)) {
    return create(interpreter() + " /c " + command, folder);
  }
  return create(command, folder) ||
         (GetLastError() == ERROR_FILE_NOT_FOUND && create(inFolder(command, folder), folder));
}

bool BuildProcess::create(const std::string& line, const std::string& folder) {
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  HANDLE read_end = nullptr;
  HANDLE write_end = nullptr;
  if (CreatePipe(&read_end, &write_end, &inherited, 0) == 0) {
    return false;
  }
  OwnedFile output(read_end);
  const OwnedFile input_of_child(write_end);
  HANDLE nothing = CreateFileA("NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                               OPEN_EXISTING, 0, nullptr);
  const OwnedFile no_input(nothing == INVALID_HANDLE_VALUE ? nullptr : nothing);
  // The child must not hold the end that is read here.
  HANDLE own = nullptr;
  if (DuplicateHandle(GetCurrentProcess(), output.get(), GetCurrentProcess(), &own, 0, FALSE,
                      DUPLICATE_SAME_ACCESS) == 0) {
    return false;
  }
  output.reset(own);
  STARTUPINFOA info = {};
  info.cb = sizeof info;
  info.dwFlags = STARTF_USESTDHANDLES | STARTF_USESHOWWINDOW;
  info.wShowWindow = SW_HIDE;
  info.hStdInput = no_input.get();
  info.hStdOutput = info.hStdError = input_of_child.get();
  PROCESS_INFORMATION made = {};
  std::string text = line;
  if (CreateProcessA(nullptr, text.data(), nullptr, nullptr, TRUE,
                     CREATE_NO_WINDOW | CREATE_SUSPENDED, nullptr, folder.c_str(), &info,
                     &made) == 0) {
    return false;
  }
  const OwnedFile thread(made.hThread);
  process_.reset(made.hProcess);
  output_ = std::move(output);
  if (jobs().there()) {
    job_.reset(jobs().create(nullptr, nullptr));
    if (job_ && jobs().assign(job_.get(), process_.get()) == 0) {
      job_.reset();
    }
  }
  ResumeThread(made.hThread);
  return true;
}

void BuildProcess::read(std::size_t most, std::string* bytes) {
  if (unix_.floods() && !mark_.empty()) {
    UnixCommand::endAllWith(mark_);
    mark_.clear();
    *bytes += "\nThe command is stopped: it writes more than can be read.\n";
  }
  unix_.read(most, bytes);
  char buffer[4096];
  while (output_ && most > 0) {
    DWORD waiting = 0;
    if (PeekNamedPipe(output_.get(), nullptr, 0, nullptr, &waiting, nullptr) == 0 || waiting == 0) {
      return;
    }
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(
        std::min<std::size_t>({sizeof buffer, most, static_cast<std::size_t>(waiting)}));
    if (ReadFile(output_.get(), buffer, wanted, &count, nullptr) == 0 || count == 0) {
      return;
    }
    bytes->append(buffer, count);
    most -= count;
  }
}

bool BuildProcess::ended(DWORD* exit_code) const {
  if (unix_.started()) {
    if (mark_.empty()) {
      *exit_code = kStopped;
    }
    return mark_.empty() || unix_.ended(exit_code);
  }
  if (!process_ || WaitForSingleObject(process_.get(), 0) != WAIT_OBJECT_0) {
    return false;
  }
  return GetExitCodeProcess(process_.get(), exit_code) != 0;
}

void BuildProcess::stop() {
  DWORD code = 0;
  const bool running = (process_ || unix_.started()) && !ended(&code);
  if (running && UnixCommand::possible()) {
    UnixCommand::endAllWith(mark_);
  }
  if (job_) {
    jobs().terminate(job_.get(), kStopped);
  }
  if (running && process_) {
    TerminateProcess(process_.get(), kStopped);
  }
  job_.reset();
  process_.reset();
  output_.reset();
  unix_.close();
  mark_.clear();
}

}  // namespace workbench
