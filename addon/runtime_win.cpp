// What the module has in place of parts of the compiler's libraries that would bring their
// exceptions along, and with them code that is newer than the i586. Whoever calls one of
// the first of them has made a mistake that ends the program either way.
#include <windows.h>

#include <atomic>
#include <functional>
#include <stdexcept>

#include "addon/end_program.h"

namespace std {

void __throw_bad_alloc() {
  kesto::endProgram("there is not enough memory");
}

void __throw_bad_array_new_length() {
  kesto::endProgram("more room was asked for than there can be");
}

void __throw_bad_function_call() {
  kesto::endProgram("a function that is none was called");
}

void __throw_length_error(const char* what) {
  kesto::endProgram(what);
}

void __throw_logic_error(const char* what) {
  kesto::endProgram(what);
}

void __throw_out_of_range(const char* what) {
  kesto::endProgram(what);
}

// The format says enough.
void __throw_out_of_range_fmt(const char* format, ...) {
  kesto::endProgram(format);
}

}  // namespace std

namespace {

// Of a variable that its function makes when it is called for the first time. Calls look at
// the first byte themselves.
struct Guard {
  std::atomic<char> made;
  std::atomic<char> begun;
};

}  // namespace

extern "C" {

// Whether the caller is the one to make the variable; whoever is not waits for it.
int __cxa_guard_acquire(Guard* guard) {
  while (guard->made == 0) {
    if (guard->begun.exchange(1) == 0) {
      return 1;
    }
    Sleep(1);
  }
  return 0;
}

void __cxa_guard_release(Guard* guard) {
  guard->made = 1;
}

void __cxa_pure_virtual() {
  kesto::endProgram("a function that is still to be defined was called");
}

// The start of a module calls it for imported data, of which this one has none: the linker
// is told to refuse it.
void _pei386_runtime_relocator() {}
}
