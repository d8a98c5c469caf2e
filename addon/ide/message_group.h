// A group of its own in the IDE's message window. User-interface thread only.
#pragma once

#include <string>

#include "addon/ide/access.h"

namespace kesto {

class MessageGroupWriter {
 public:
  // Both must outlive the writer; the menu text is the name with an "&".
  MessageGroupWriter(const char* name, const char* menu_text)
      : name_(name), menu_text_(menu_text) {}

  // The group is made at the first call and kept. False where the IDE has none.
  bool open();
  // Adds at the top level; what follows stands below it.
  void addHeader(const std::string& text);
  void add(const std::string& text);
  void addLocated(const char* text, const char* file, int line, short column, int kind);

 private:
  const char* name_;
  const char* menu_text_;
  ComPtr<IMessageService> service_;
  MessageGroup group_ = 0;
  MessageHandle header_ = 0;
};

}  // namespace kesto
