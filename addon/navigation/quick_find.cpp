#include "addon/navigation/quick_find.h"

#include "addon/foundation/settings_store.h"

namespace kesto {

QuickFind* quickFind = nullptr;

namespace {

constexpr char kSection[] = "QuickFind";
// In the order of Search.
constexpr const char* kKeyNames[kSearchCount] = {"KeyFunction", "KeyMethod", "KeyClass",
                                                 "KeyCross"};
constexpr const char* kTextNames[kSearchCount] = {"TxtFunction", "TxtMethod", "TxtClass",
                                                  "TxtCross"};

void readText(const char* name, const char* by_default, String& text) {
  char buffer[SettingsStore::kValueSize] = "";
  settings().readString(kSection, name, buffer, sizeof buffer, by_default);
  text = buffer;
}

}  // namespace

QuickFind::QuickFind(HWND owner) : owner_(owner) {
  readText("FunctionMask", kSourceMasks, function_mask_);
  readText("IncludeMask", kHeaderMasks, include_mask_);
  for (int i = 0; i < kSearchCount; ++i) {
    readText(kTextNames[i], "???", key_texts_[i]);
  }
  recurse_ = settings().readInteger(kSection, "Recurse", 1);
  left_side_ = settings().readInteger(kSection, "LeftSide", 1);
  for (int i = 0; i < kSearchCount; ++i) {
    keys_[i] = static_cast<unsigned short>(settings().readInteger(kSection, kKeyNames[i], 0));
  }
}

QuickFind::~QuickFind() {
  SettingsStore& store = settings();
  store.writeString(kSection, "FunctionMask", function_mask_);
  store.writeString(kSection, "IncludeMask", include_mask_);
  for (int i = 0; i < kSearchCount; ++i) {
    store.writeString(kSection, kTextNames[i], key_texts_[i]);
  }
  store.writeInteger(kSection, "Recurse", recurse_);
  store.writeInteger(kSection, "LeftSide", left_side_);
  for (int i = 0; i < kSearchCount; ++i) {
    store.writeInteger(kSection, kKeyNames[i], keys_[i]);
  }
}

}  // namespace kesto
