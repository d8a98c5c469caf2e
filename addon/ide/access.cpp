#include "addon/ide/access.h"

#include <cstring>
#include <new>

namespace kesto {
namespace {

IIde* storedIde = nullptr;

}  // namespace

void storeIde(IIde* ide) {
  storedIde = ide;
}

void releaseIde() {
  if (storedIde != nullptr) {
    storedIde->Release();
    storedIde = nullptr;
  }
}

ComPtr<IIde> acquireIde() {
  if (storedIde != nullptr) {
    storedIde->AddRef();
  }
  return ComPtr<IIde>(storedIde);
}

void* getServicePointer(const GUID& id) {
  const ComPtr<IIde> ide = acquireIde();
  void* service = nullptr;
  if (!ide || ide->QueryInterface(id, &service) != 0) {
    return nullptr;
  }
  return service;
}

ComPtr<IIdeString> makeIdeString(const char* text) {
  const ComPtr<IIde> ide = acquireIde();
  if (!ide) {
    return {};
  }
  ComPtr<IIdeString> string(ide->CreateIdeString());
  if (string) {
    string->SetText(text);
  }
  return string;
}

std::unique_ptr<char[]> takeIdeString(IIdeString* string) {
  const ComPtr<IIdeString> owned(string);
  const char* text = owned ? owned->GetText() : nullptr;
  if (text == nullptr) {
    return nullptr;
  }
  const size_t size = strlen(text) + 1;
  std::unique_ptr<char[]> copy(new (std::nothrow) char[size]);
  if (copy != nullptr) {
    memcpy(copy.get(), text, size);
  }
  return copy;
}

}  // namespace kesto
