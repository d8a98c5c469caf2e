#include "addon/ide/message_group.h"

namespace kesto {

bool MessageGroupWriter::open() {
  if (!service_) {
    service_ = getService<IMessageService>(ideapi::kMessageService);
  }
  if (service_ && group_ == 0) {
    const ComPtr<IIdeString> name = makeIdeString(name_);
    const ComPtr<IIdeString> menu_text = makeIdeString(menu_text_);
    if (name && menu_text) {
      group_ = service_->CreateGroup(name.get(), menu_text.get());
    }
  }
  return group_ != 0;
}

void MessageGroupWriter::addHeader(const std::string& text) {
  const ComPtr<IIdeString> header = open() ? makeIdeString(text.c_str()) : ComPtr<IIdeString>();
  if (header) {
    header_ = service_->AddMessage(group_, 0, header.get());
  }
}

void MessageGroupWriter::add(const std::string& text) {
  const ComPtr<IIdeString> string = open() ? makeIdeString(text.c_str()) : ComPtr<IIdeString>();
  if (string) {
    service_->AddMessage(group_, header_, string.get());
  }
}

void MessageGroupWriter::addLocated(const char* text, const char* file, int line, short column,
                                    int kind) {
  const ComPtr<IIdeString> string = open() ? makeIdeString(text) : ComPtr<IIdeString>();
  const ComPtr<IIdeString> place = makeIdeString(file);
  if (string && place) {
    service_->AddLocatedMessage(group_, header_, string.get(), place.get(), line, column, kind);
  }
}

}  // namespace kesto
