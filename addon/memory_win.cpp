// The module's own new and delete: those of the compiler's library throw, and so bring all of
// its exceptions along.
#include <cstdlib>
#include <new>

#include "addon/end_program.h"

namespace {

// A block of no bytes is one as well.
void* blockOf(std::size_t size) {
  return malloc(size != 0 ? size : 1);
}

void* sureBlockOf(std::size_t size) {
  void* const block = blockOf(size);
  if (block == nullptr) {
    kesto::endProgram("there is not enough memory");
  }
  return block;
}

}  // namespace

void* operator new(std::size_t size) {
  return sureBlockOf(size);
}

void* operator new[](std::size_t size) {
  return sureBlockOf(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return blockOf(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return blockOf(size);
}

void operator delete(void* block) noexcept {
  free(block);
}

void operator delete[](void* block) noexcept {
  free(block);
}

void operator delete(void* block, std::size_t) noexcept {
  free(block);
}

void operator delete[](void* block, std::size_t) noexcept {
  free(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
  free(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept {
  free(block);
}
