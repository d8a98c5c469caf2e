#include "workbench/services/message_service.h"

#include "workbench/messages/message_store.h"
#include "workbench/services/ide_string.h"

namespace workbench {

MessageService::MessageService(const ServiceContext& context)
    : Service(context.live, "message service", ideapi::kMessageService), context_(context) {}

MessageGroup STDMETHODCALLTYPE MessageService::CreateGroup(IIdeString* name,
                                                           IIdeString* menu_text) {
  return context_.messages.createGroup(textOf(name), textOf(menu_text));
}

MessageHandle STDMETHODCALLTYPE MessageService::AddMessage(MessageGroup group, MessageHandle parent,
                                                           IIdeString* text) {
  return AddLocatedMessage(group, parent, text, nullptr, 0, 0, kMessageInformation);
}

MessageHandle STDMETHODCALLTYPE MessageService::AddLocatedMessage(MessageGroup group,
                                                                  MessageHandle parent,
                                                                  IIdeString* text,
                                                                  IIdeString* file, int line,
                                                                  short column, int kind) {
  Message message;
  message.parent = parent;
  message.text = textOf(text);
  message.file = textOf(file);
  message.line = line;
  message.column = column;
  message.kind = kind;
  return context_.messages.add(group, message);
}

}  // namespace workbench
