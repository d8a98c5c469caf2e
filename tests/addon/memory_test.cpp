// The module's own new and delete, which this program is linked with.
#include <windows.h>

#include <new>
#include <string>

#include "doctest.h"

namespace {

// More than there is in the half of the addresses that a program has.
volatile std::size_t too_much = 0x7FFFFFF0;

constexpr UINT kWentOn = 77;

}  // namespace

// For the program that the next one starts.
TEST_CASE("takes more memory than there is" * doctest::skip()) {
  operator delete(operator new(too_much));
  TerminateProcess(GetCurrentProcess(), kWentOn);
}

TEST_CASE("memory that runs out yields null where that is asked for, and else ends the program") {
  // Called as functions: the compiler may leave out what is made by an expression.
  CHECK(operator new(too_much, std::nothrow) == nullptr);
  CHECK(operator new[](too_much, std::nothrow) == nullptr);
  void* const none = operator new(0);
  CHECK(none != nullptr);
  operator delete(none);

  char program[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, program, sizeof program);
  std::string command =
      std::string("\"") + program + "\" --no-skip --test-case=\"takes more memory than there is\"";
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  REQUIRE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                         &startup, &started));
  WaitForSingleObject(started.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(started.hProcess, &code);
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  // As abort() ends it.
  CHECK(code == 3);
}
