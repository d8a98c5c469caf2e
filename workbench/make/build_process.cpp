#include "workbench/make/build_process.h"

#include <algorithm>
#include <vector>

#include "workbench/make/output_line.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

constexpr UINT kStopped = 1;  // exit code of a process that was ended

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

}  // namespace

bool BuildProcess::start(const std::string& command, const std::string& folder,
                         std::string* reason) {
  stop();
  bool created = false;
  if (needsInterpreter(command)) {
    created = create(interpreter() + " /c " + command, folder);
  } else {
    created = create(command, folder);
    if (!created && GetLastError() == ERROR_FILE_NOT_FOUND) {
      created = create(inFolder(command, folder), folder);
    }
  }
  if (!created) {
    *reason = systemText(GetLastError());
  }
  return created;
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
  if (!process_ || WaitForSingleObject(process_.get(), 0) != WAIT_OBJECT_0) {
    return false;
  }
  return GetExitCodeProcess(process_.get(), exit_code) != 0;
}

void BuildProcess::stop() {
  if (job_) {
    jobs().terminate(job_.get(), kStopped);
  }
  DWORD code = 0;
  if (process_ && !ended(&code)) {
    TerminateProcess(process_.get(), kStopped);
  }
  job_.reset();
  process_.reset();
  output_.reset();
}

}  // namespace workbench
